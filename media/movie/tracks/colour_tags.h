// SPDX-License-Identifier: MIT
//
// Colour codes of a video as the image buffer attachments that the platform names them with.
#pragma once

#include <cstdint>
#include <optional>

#include "model/value.h"

namespace media::movie {

// Code points of ITU-T H.273 (the same in "colr" boxes and in H.264 and HEVC headers).
struct ColourCodes {
  std::uint32_t primaries = 2;  // 2 is "not specified"
  std::uint32_t transfer = 2;
  std::uint32_t matrix = 2;

  bool operator==(const ColourCodes&) const = default;
};

// Sets CVImageBufferColorPrimaries, CVImageBufferTransferFunction (with CVImageBufferGammaLevel
// for a plain gamma) and CVImageBufferYCbCrMatrix; each only where the code has a name.
void setColourTags(model::Dictionary& extensions, const ColourCodes& codes);

// Sets CVImageBufferChromaLocationTopField and -BottomField from the codes of H.264 and HEVC,
// annex E (0 is left). Codes without a name count as left.
void setChromaLocation(model::Dictionary& extensions, std::uint32_t topField,
                       std::uint32_t bottomField);

}  // namespace media::movie
