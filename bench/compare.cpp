// SPDX-License-Identifier: MIT
//
// compare FOLDER...: the share of values that agree with exiftool and mediainfo, every difference
// listed. Exit status 1 where the goal is missed.
#include "bench/compare.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

namespace {

constexpr double goalPercent = 99.5;

std::vector<std::string> filesBelow(const char* path) {
  namespace fs = std::filesystem;
  if (fs::is_regular_file(path)) return {path};
  std::vector<std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(path)) {
    if (entry.is_regular_file()) files.push_back(entry.path().string());
  }
  std::ranges::sort(files);
  return files;
}

}  // namespace

int main(int count, char** arguments) {
  std::vector<std::string> files;
  for (int index = 1; index < count; ++index) {
    std::ranges::move(filesBelow(arguments[index]), std::back_inserter(files));
  }
  bool met = true;
  if (bench::isInstalled("exiftool")) {
    bench::Tally images;
    bench::compareImages(files, images);
    met = images.report("images against exiftool -n", goalPercent) && met;
  } else {
    std::puts("exiftool is not installed: images are not compared");
  }
  if (bench::isInstalled("mediainfo")) {
    bench::Tally videos;
    bench::compareVideos(files, videos);
    met = videos.report("videos against mediainfo", goalPercent) && met;
  } else {
    std::puts("mediainfo is not installed: videos are not compared");
  }
  return met ? 0 : 1;
}
