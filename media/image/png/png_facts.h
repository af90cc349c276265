// SPDX-License-Identifier: MIT
//
// The chunks of PNG files that hold a fact or two each. ISO/IEC 15948, clause 11; APNG.
#pragma once

#include <string_view>

#include "io/byte_view.h"
#include "model/value.h"

namespace media::image {

// The IHDR chunk: size, depth, colour model, and the interlacing in "{PNG}". False where it is too
// short or the image has no pixels.
bool readPngHeader(io::ByteView payload, model::Dictionary& properties);

// Whether readPngFact() reads chunks of the type.
bool isPngFactChunk(std::string_view type);

// Puts what a chunk says into "{PNG}" and the top level.
void readPngFact(std::string_view type, io::ByteView payload, model::Dictionary& properties);

}  // namespace media::image
