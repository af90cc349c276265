// SPDX-License-Identifier: MIT
//
// A progress bar for long scans.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

#include "apps/lumifact/terminal/console.h"

namespace lumifact::tool {

// Shows how far a scan is, where the console has a place for it and the scan is not over at once.
class Progress {
 public:
  explicit Progress(Console& console);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // To be called after each file, with the files done and all that are known so far.
  void update(std::size_t done, std::size_t total);

 private:
  using Clock = std::chrono::steady_clock;

  Console& _console;
  Clock::time_point _nextDrawing;
};

enum class Colour { none, green };

// "[######--------------] 1500 of 5000 files", for the tests too.
std::string progressLine(std::size_t done, std::size_t total, Colour colour);

}  // namespace lumifact::tool
