// SPDX-License-Identifier: MIT
//
// What the properties of a HEIF item say about its colours.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "io/byte_view.h"
#include "io/iso_box.h"
#include "io/source_reader.h"

namespace media::image {

struct HeifPixels {
  int depth = 0;  // bits of a channel; 0 where the property does not say
  bool isGray = false;
};

// From the payloads of the pixel information, HEVC and AV1 configuration properties. ISO/IEC
// 23008-12, 6.5.6; ISO/IEC 14496-15, 8.3.2.1; AV1 in ISO Base Media File Format, 2.3.
HeifPixels heifPixels(io::ByteView information);
HeifPixels hevcPixels(io::ByteView configuration);
HeifPixels av1Pixels(io::ByteView configuration);

// The name of the ICC profile in a colour information box, if it holds one. ISO/IEC 14496-12,
// 12.1.5.
std::optional<std::string> heifIccName(io::SourceReader& file, const io::IsoBox& colors);

// The name of the profile that the code points in the payload of such a box stand for; none for
// combinations that no common profile has. ISO/IEC 23091-2.
std::optional<std::string> heifCodedColorName(io::ByteView colors);

}  // namespace media::image
