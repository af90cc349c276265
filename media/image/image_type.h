// SPDX-License-Identifier: MIT
//
// The kind of a photo or video file, as the uniform type identifier that the phone has for it.
#pragma once

#include <string_view>

#include "io/byte_view.h"

namespace media::image {

// "public.jpeg", "com.apple.quicktime-movie", ... by the first bytes of the file (512 are enough);
// where they say nothing, by the name's extension; empty where that says nothing either. Raw files
// that are TIFF structures without a mark of their own are told apart by their extension.
std::string_view uniformTypeIdentifier(io::ByteView head, std::string_view fileName);

}  // namespace media::image
