// SPDX-License-Identifier: MIT
//
// The boxes of a video sample entry that say how its pictures are shown: "colr", "pasp", "clap",
// "fiel". ISO/IEC 14496-12, 12.1.4 and 12.1.5; QuickTime File Format, "Video Sample Description
// Extensions".
#pragma once

#include "media/movie/boxes/box_view.h"
#include "model/value.h"

namespace media::movie {

// Sets what a "pasp", "clap" or "fiel" box says: CVPixelAspectRatio, CVCleanAperture, CVFieldCount
// and CVFieldDetail. Whether the box is one of these; a damaged one sets nothing.
bool setPictureBox(model::Dictionary& extensions, const BoxView& box);

// Whether the payload of a "colr" box holds colour codes, and not a profile.
bool isColourBox(io::ByteView payload);

// Sets the colour tags in place of those set before, and FullRangeVideo where the box tells.
void setColourBox(model::Dictionary& extensions, io::ByteView payload);

}  // namespace media::movie
