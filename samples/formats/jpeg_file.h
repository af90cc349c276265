// SPDX-License-Identifier: MIT
//
// JPEG files, coded by libjpeg-turbo.
#pragma once

#include <vector>

#include "samples/formats/byte_writer.h"
#include "samples/pictures/picture.h"

namespace samples {

// An application segment, without its marker and length.
struct JpegSegment {
  int number = 1;  // of APP1, APP2, ...
  Bytes payload;
};

struct JpegLook {
  int quality = 92;
  bool progressive = false;
  bool grayscale = false;
  bool jfif = false;  // with the JFIF segment and its density
  int density = 72;   // dots an inch
};

// REQUIRES: every payload is under 65,534 bytes.
Bytes jpegFile(const Picture& stored, const JpegLook& look,
               const std::vector<JpegSegment>& segments);

// The payloads of APP1 for Exif and XMP, and of APP2 for a colour profile that fits one segment.
Bytes exifSegment(const Bytes& tiffBlock);
Bytes xmpSegment(std::string_view packet);
Bytes profileSegment(const Bytes& profile);

}  // namespace samples
