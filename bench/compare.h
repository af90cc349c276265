// SPDX-License-Identifier: MIT
//
// What our readers say of a folder's files beside what other readers say.
#pragma once

#include <string>
#include <vector>

#include "bench/peer.h"

namespace bench {

// Compares the named {TIFF}, {Exif} and {GPS} values of every image with exiftool's.
void compareImages(const std::vector<std::string>& files, Tally& tally);

// Compares durations, rates, sizes, rotation and codecs of every video with mediainfo's.
void compareVideos(const std::vector<std::string>& files, Tally& tally);

}  // namespace bench
