// SPDX-License-Identifier: MIT
//
// The metadata blocks that image containers carry, each read into the properties dictionary that
// the container is building. Damaged parts are left out; nothing fails.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "io/byte_view.h"
#include "model/value.h"

namespace media::image {

// An Exif block: a TIFF structure that starts with its byte order mark ("II*\0" or "MM\0*").
// Fills "{TIFF}", "{Exif}", "{ExifAux}", "{GPS}", "{MakerApple}" and the top-level "Orientation",
// and what XMP, IPTC and Photoshop blocks inside it hold; XMP and IPTC never go before Exif. The
// time offsets stay in "{Exif}" until takeTimeOffsets() (time_offsets.h) takes them out, once for
// all containers. EXIF 2.31.
void readExifBlock(io::ByteView block, model::Dictionary& properties);

// An XMP packet (UTF-8 XML). Fills "{IPTC}", "{ExifAux}" and, where EXIF has said nothing,
// "{Exif}", "{TIFF}" and "{GPS}"; values already present stay. ISO 16684-1.
void readXmpPacket(io::ByteView packet, model::Dictionary& properties);

// IPTC-IIM datasets. Fills "{IPTC}". Of several blocks the first counts, except for datasets that
// are empty there. IPTC-IIM 4.2.
void readIptcBlock(io::ByteView datasets, model::Dictionary& properties);
// Whether a further block could fill what the ones before have left empty.
bool hasEmptyDatasets(const model::Dictionary& properties);

// Photoshop image resources ("8BIM"): their IPTC datasets are read as above.
void readPhotoshopResources(io::ByteView resources, model::Dictionary& properties);

// The profile description of an ICC profile ("Display P3"). ICC.1:2010, 9.2.41.
std::optional<std::string> iccProfileName(io::ByteView profile);

// The name under which sRGB is known where no profile stands for it.
inline constexpr std::string_view srgbProfileName = "sRGB IEC61966-2.1";

// The section of that name (braces included), made where it is missing.
model::Dictionary& section(model::Dictionary& properties, std::string_view name);

// The text under a key of a section; empty where there is none. Borrowed.
std::string_view sectionText(const model::Dictionary& properties, std::string_view name,
                             std::string_view key);

// Stores the value under the key unless the dictionary has one.
void setIfAbsent(model::Dictionary& dictionary, std::string_view key, model::Value value);

}  // namespace media::image
