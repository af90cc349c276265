// SPDX-License-Identifier: MIT
//
// make_samples FOLDER [--force]: makes the sample library.
#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>

#include "samples/library/items.h"
#include "samples/library/library.h"

namespace {

constexpr std::string_view usage = "usage: make_samples FOLDER [--force]\n";

int report(const std::string& folder, const model::Result<samples::Outcome>& outcome) {
  if (!outcome) {
    std::cerr << "make_samples: " << outcome.error().reason << "\n";
    return 1;
  }
  if (*outcome == samples::Outcome::current)
    std::cout << folder << " is up to date\n";
  else
    std::cout << "made " << samples::allPhotos().size() << " photos and "
              << samples::allMovies().size() << " videos in " << folder << "\n";
  return 0;
}

int run(int count, char** arguments) {
  std::string folder;
  auto rewrite = samples::Rewrite::ifOutdated;
  for (int index = 1; index < count; ++index) {
    const std::string_view argument = arguments[index];
    if (argument == "--force") {
      rewrite = samples::Rewrite::always;
    } else if (folder.empty() && !argument.empty() && argument.front() != '-') {
      folder = argument;
    } else {
      std::cerr << usage;
      return 2;
    }
  }
  if (folder.empty()) {
    std::cerr << usage;
    return 2;
  }
  return report(folder, samples::makeLibrary(folder, rewrite));
}

}  // namespace

int main(int count, char** arguments) {
  try {
    return run(count, arguments);
  } catch (const std::exception& problem) {
    std::fputs("make_samples: ", stderr);
    std::fputs(problem.what(), stderr);
    std::fputs("\n", stderr);
    return 1;
  }
}
