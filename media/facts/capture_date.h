// SPDX-License-Identifier: MIT
//
// When a photo or video was taken, from its metadata.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/media_asset.h"
#include "model/value.h"

namespace media::facts {

// DateTimeOriginal of "{Exif}" with its offset from UTC ("+02:00"), or in the process's time zone
// where there is none that reads. None where it is missing or no date, as cameras without a clock
// write it ("0000:00:00 00:00:00").
std::optional<model::Date> captureDateOfProperties(const model::Dictionary& properties,
                                                   const std::optional<std::string>& offset);

// A date with a time and an offset as movies write it: "2018-09-30T14:03:11+0200", with "+02:00"
// or "Z" too; in the process's time zone without an offset. None where it does not read.
std::optional<model::Date> dateOfMovieText(std::string_view text);

// The creation date of a video: of its metadata, else of the movie itself.
std::optional<model::Date> captureDateOfAsset(const model::MediaAsset& asset);

}  // namespace media::facts
