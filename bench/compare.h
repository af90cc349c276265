// SPDX-License-Identifier: MIT
//
// What our readers say of a folder's files beside what other readers say.
#pragma once

#include <string>
#include <vector>

#include "bench/tally.h"

namespace bench {

// Compares every key of the table with exiftool's tags, of every image.
void compareImages(const std::vector<std::string>& files, Tally& tally);

// Compares sizes, rotations, codecs, times and rates of every track of every video.
void compareWithMediainfo(const std::vector<std::string>& files, Tally& tally);
void compareWithFfprobe(const std::vector<std::string>& files, Tally& tally);

}  // namespace bench
