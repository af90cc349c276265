// SPDX-License-Identifier: MIT
//
// The entries of "stsd": how a track's samples are coded, as QuickTime and ISO files tell it.
#pragma once

#include <span>
#include <string_view>

#include "samples/library/item.h"

namespace samples {

// `configuration` is the content of "avcC" or "hvcC".
Bytes videoDescription(const Movie& movie, const Bytes& configuration);

// `configuration` is AudioSpecificConfig. One channel.
Bytes aacDescription(MovieBrand brand, const Bytes& configuration);

// Signed 16-bit little-endian, one channel (QuickTime's version 2 sound description).
Bytes linearPcmDescription();

// The sound of phone calls, at 8 kHz; it says two channels, as phones do, though it has one.
Bytes amrDescription();

// Timed metadata ("mebx") with one key; `dataType` is a well-known type of QuickTime metadata.
Bytes timedMetadataDescription(std::string_view key, std::uint32_t dataType);

}  // namespace samples
