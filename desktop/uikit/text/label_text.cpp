// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/label_text.h"

#include <algorithm>

#include "desktop/uikit/text/utf16.h"

namespace desktop::uikit {
namespace {

constexpr std::u16string_view ellipsis = u"\u2026";
// More of a line is never looked at: no label shows as much.
constexpr std::size_t longestLine = 4096;

// `kept` units of a line, with the ellipsis for the rest.
std::u16string cut(std::u16string_view line, std::size_t kept, LineBreakMode mode) {
  std::size_t front = kept;
  if (mode == LineBreakMode::byTruncatingHead) front = 0;
  if (mode == LineBreakMode::byTruncatingMiddle) front = (kept + 1) / 2;
  front = outsidePair(line, front);
  std::size_t back = line.size() - (kept - std::min(front, kept));
  if (outsidePair(line, back) != back) ++back;
  while (front > 0 && line[front - 1] == u' ') --front;
  std::u16string made(line.substr(0, front));
  made += ellipsis;
  return made += line.substr(back);
}

bool truncates(LineBreakMode mode) {
  return mode == LineBreakMode::byTruncatingHead || mode == LineBreakMode::byTruncatingTail ||
         mode == LineBreakMode::byTruncatingMiddle;
}

}  // namespace

std::u16string truncated(std::u16string_view line, const FontFace& face, double width,
                         LineBreakMode mode) {
  constexpr double tolerance = 0.01;  // points
  const auto fits = [&](std::u16string_view text) {
    while (text.ends_with(u' ')) text.remove_suffix(1);
    return textEngine().width(face, text) <= width + tolerance;
  };
  const bool isTooLong = line.size() > longestLine;
  if (!truncates(mode)) return std::u16string(line.substr(0, longestLine));
  if (!isTooLong && fits(line)) return std::u16string(line);
  std::size_t fitting = 0;
  for (std::size_t above = std::min(line.size(), longestLine); fitting + 1 < above;) {
    const std::size_t middle = (fitting + above) / 2;
    (fits(cut(line, middle, mode)) ? fitting : above) = middle;
  }
  return cut(line, fitting, mode);
}

double sizeFitting(std::u16string_view line, const FontFace& face, double width,
                   double smallestSize) {
  constexpr int tries = 4;  // letters do not shrink quite evenly
  FontFace shrunk = face;
  line = line.substr(0, longestLine);
  while (line.ends_with(u' ')) line.remove_suffix(1);
  for (int attempt = 0; attempt < tries; ++attempt) {
    const double needed = textEngine().width(shrunk, line);
    if (!(needed > width)) return shrunk.size;
    const double next = shrunk.size * std::max(width, 0.0) / needed;
    if (next <= smallestSize) return std::min(smallestSize, face.size);
    shrunk.size = next;
  }
  return shrunk.size;
}

}  // namespace desktop::uikit
