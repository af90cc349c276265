// SPDX-License-Identifier: MIT
//
// compare FOLDER...: the share of values that agree with exiftool, mediainfo and ffprobe, by key,
// and every difference. Exit status 1 where a goal is missed.
#include "bench/compare.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string_view>

#include "bench/peer.h"

namespace {

using Names = std::span<const std::string_view>;

constexpr std::string_view exifSections[] = {"{TIFF}", "{Exif}", "{GPS}"};
constexpr std::string_view iptcSection[] = {"{IPTC}"};
constexpr std::string_view topLevel[] = {""};
constexpr std::string_view shapes[] = {"size", "codec"};
constexpr std::string_view times[] = {"time", "rate", "sound"};

constexpr bench::Goal imageGoals[] = {{"{TIFF}, {Exif}, {GPS}", Names(exifSections), 99.9},
                                      {"{IPTC}", Names(iptcSection), 99},
                                      {"sizes and orientations", Names(topLevel), 100}};
constexpr bench::Goal videoGoals[] = {{"sizes, rotations and codecs", Names(shapes), 100},
                                      {"times, rates and sound", Names(times), 99}};

// A reader that is asked about all files, where it is installed.
struct Peer {
  const char* program;
  const char* what;
  void (*compare)(const std::vector<std::string>& files, bench::Tally& tally);
  std::span<const bench::Goal> goals;
};

constexpr Peer peers[] = {
    {"exiftool", "images beside exiftool -n", bench::compareImages, imageGoals},
    {"mediainfo", "videos beside mediainfo", bench::compareWithMediainfo, videoGoals},
    {"ffprobe", "videos beside ffprobe", bench::compareWithFfprobe, videoGoals},
};

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
  bool isMet = true;
  for (const Peer& peer : peers) {
    if (!bench::isInstalled(peer.program)) {
      std::printf("%s is not installed\n", peer.program);
      continue;
    }
    bench::Tally tally;
    peer.compare(files, tally);
    isMet = tally.report(peer.what, peer.goals) && isMet;
  }
  return isMet ? 0 : 1;
}
