// SPDX-License-Identifier: MIT
//
// process_bench LUMIFACT SAMPLES WORK: whole processes side by side on a folder made from the
// samples: 1,000 JPEGs, 50 HEICs, 50 MOVs. Prints a line a claim with goal, figure and verdict;
// peers that are not installed are named and left out.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/peer.h"
#include "bench/process.h"

namespace {

namespace fs = std::filesystem;
using bench::runProcess;
using Command = std::vector<std::string>;

constexpr int rounds = 5;

// The quickest of several runs in seconds: the one least disturbed by the machine.
double quickest(const Command& command, int times = rounds) {
  double best = 1e9;
  for (int round = 0; round < times; ++round) best = std::min(best, runProcess(command).seconds);
  return best;
}

void verdict(const char* what, double figure, const char* relation, double goal, const char* unit,
             bool met) {
  std::printf("%-58s %10.2f %-6s goal %s %g: %s\n", what, figure, unit, relation, goal,
              met ? "met" : "MISSED");
  std::fflush(stdout);
}

void atLeast(const char* what, double figure, double goal, const char* unit) {
  verdict(what, figure, ">=", goal, unit, figure >= goal);
}

void atMost(const char* what, double figure, double goal, const char* unit) {
  verdict(what, figure, "<=", goal, unit, figure <= goal);
}

std::vector<fs::path> samplesNamed(const fs::path& samples, const std::string& extension) {
  std::vector<fs::path> found;
  for (const auto& entry : fs::recursive_directory_iterator(samples)) {
    std::string ending = entry.path().extension().string();
    std::ranges::transform(ending, ending.begin(), [](unsigned char c) { return std::tolower(c); });
    if (entry.is_regular_file() && ending == extension) found.push_back(entry.path());
  }
  std::ranges::sort(found);
  return found;
}

// Fills a folder with copies of the samples of one kind, each in turn.
fs::path copies(const fs::path& samples, const fs::path& work, const std::string& extension,
                std::size_t count) {
  fs::path folder = work / extension.substr(1);
  fs::create_directories(folder);
  const auto originals = samplesNamed(samples, extension);
  if (originals.empty()) {
    std::fprintf(stderr, "process_bench: no %s among the samples\n", extension.c_str());
    std::exit(1);
  }
  for (std::size_t index = 0; index < count; ++index) {
    const fs::path to = folder / (std::to_string(index) + extension);
    if (!fs::exists(to)) fs::copy_file(originals[index % originals.size()], to);
  }
  return folder;
}

// Many names for few files, so that a long scan needs no disk.
fs::path manyLinks(const fs::path& from, const fs::path& work, std::size_t count) {
  fs::path folder = work / ("links-" + std::to_string(count));
  std::vector<fs::path> originals;
  for (const auto& entry : fs::directory_iterator(from)) originals.push_back(entry.path());
  std::ranges::sort(originals);
  for (std::size_t index = 0; index < count; ++index) {
    const fs::path shelf = folder / std::to_string(index / 1000);
    fs::create_directories(shelf);
    const fs::path name = shelf / (std::to_string(index) + ".jpg");
    if (!fs::exists(name)) fs::create_hard_link(originals[index % originals.size()], name);
  }
  return folder;
}

struct Peer {
  const char* name;
  Command command;  // followed by the folder or its files
  bool wantsFiles;  // else it walks the folder itself
};

void compareWith(const Peer& peer, const Command& ours, const fs::path& folder, double goal) {
  if (!bench::isInstalled(peer.command.front())) {
    std::printf("%s is not installed: not compared\n", peer.name);
    return;
  }
  Command theirs = peer.command;
  if (peer.wantsFiles) {
    for (const auto& entry : fs::directory_iterator(folder)) theirs.push_back(entry.path());
  } else {
    theirs.push_back(folder);
  }
  const double our = quickest(ours);
  const double their = quickest(theirs, 2);
  const std::string what =
      "times the speed of " + std::string(peer.name) + " on " + folder.filename().string();
  atLeast(what.c_str(), their / our, goal, "times");
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 4) {
    std::fprintf(stderr, "usage: process_bench LUMIFACT SAMPLES WORK\n");
    return 2;
  }
  const std::string lumifact = arguments[1];
  const fs::path work = arguments[3];
  const fs::path jpegs = copies(arguments[2], work, ".jpg", 1000);
  const fs::path heics = copies(arguments[2], work, ".heic", 50);
  const fs::path movies = copies(arguments[2], work, ".mov", 50);
  const auto report = [&](const fs::path& folder, const char* jobs) {
    return Command{lumifact, "report", "--recursive", "--jobs", jobs, folder};
  };

  compareWith({"exiv2 -pa", {"exiv2", "-q", "-pa"}, true}, report(jpegs, "1"), jpegs, 5);
  compareWith({"exiftool -fast2", {"exiftool", "-fast2", "-q"}, false}, report(jpegs, "1"), jpegs,
              80);
  compareWith({"exiftool", {"exiftool", "-q"}, false}, report(heics, "1"), heics, 100);
  compareWith({"exiftool", {"exiftool", "-q"}, false}, report(movies, "1"), movies, 100);
  compareWith({"mediainfo", {"mediainfo"}, true}, report(movies, "1"), movies, 10);
  // One file a process is all that ffprobe takes.
  const fs::path movie = movies / "0.mov";
  if (bench::isInstalled("ffprobe")) {
    const double their = quickest({"ffprobe", "-v", "quiet", "-show_streams", movie}, 20);
    const double our = quickest({lumifact, "report", movie}, 20);
    atLeast("times the speed of ffprobe on one movie", their / our, 10, "times");
  }

  if (bench::isInstalled("exiv2")) {
    const double our = quickest({lumifact, "--version"}, 50) * 1000;
    const double their = quickest({"exiv2", "--version"}, 50) * 1000;
    atMost("start-up of --version, ms", our, 2, "ms");
    atMost("start-up of --version, share of exiv2's", our / their, 1, "times");
  }

  const fs::path four = manyLinks(jpegs, work, 4000);
  atMost("4,000 files, warm", quickest(report(four, "1")), 0.25, "s");
  const fs::path hundred = manyLinks(jpegs, work, 100000);
  const double few = runProcess(report(four, "1")).peakMemory;
  const double many = runProcess(report(hundred, "1")).peakMemory;
  atMost("peak memory scanning 100,000 files", many, 20, "MB");
  atMost("the same, beside 4,000 files", many / few, 1.2, "times");

  const double one = quickest(report(hundred, "1"), 2);
  const double two = quickest(report(hundred, "2"), 2);
  atLeast("speed of two jobs beside one", one / two, 1.7, "times");
  const auto inOrder = bench::outputOf(report(four, "1"));
  const bool same = inOrder && inOrder == bench::outputOf(report(four, "2"));
  std::printf("%-58s %s\n", "the output of two jobs is that of one", same ? "met" : "MISSED");
  return 0;
}
