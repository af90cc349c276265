// SPDX-License-Identifier: MIT
//
// TIFF 6.0 files with 16 bits a channel.
#pragma once

#include "samples/metadata/tiff_block.h"
#include "samples/pictures/picture.h"

namespace samples {

// `directory` holds the metadata; the tags of the image itself are added to it. The pixels are
// compressed with deflate after horizontal differencing.
Bytes tiffFile(const Picture& stored, Directory directory, ByteOrder order);

}  // namespace samples
