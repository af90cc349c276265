// SPDX-License-Identifier: MIT
#include "apps/lumifact/terminal/progress.h"

#include <algorithm>
#include <cstdlib>

namespace lumifact::tool {

namespace {

constexpr auto delay = std::chrono::milliseconds(500);     // before the bar is first drawn
constexpr auto interval = std::chrono::milliseconds(100);  // between drawings
constexpr std::size_t barWidth = 24;                       // columns

// https://no-color.org: any value but an empty one.
Colour wantedColour() {
  const char* noColour = std::getenv("NO_COLOR");
  return noColour != nullptr && *noColour != '\0' ? Colour::none : Colour::green;
}

}  // namespace

Progress::Progress(Console& console) : _console(console), _nextDrawing(Clock::now() + delay) {}

Progress::~Progress() {
  _console.showStatus({});
}

void Progress::update(std::size_t done, std::size_t total) {
  if (!_console.canShowStatus() || Clock::now() < _nextDrawing) return;
  _nextDrawing = Clock::now() + interval;
  _console.showStatus(progressLine(done, total, wantedColour()));
}

std::string progressLine(std::size_t done, std::size_t total, Colour colour) {
  const std::size_t filled = total == 0 ? 0 : std::min(barWidth, done * barWidth / total);
  std::string line = "[";
  if (colour == Colour::green) line += "\x1b[32m";
  line.append(filled, '#');
  if (colour == Colour::green) line += "\x1b[0m";
  line.append(barWidth - filled, '-').append("] ").append(std::to_string(done));
  return line.append(" of ").append(std::to_string(total)).append(" files");
}

}  // namespace lumifact::tool
