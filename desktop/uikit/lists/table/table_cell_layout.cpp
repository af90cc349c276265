// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/table_cell_layout.h"

#include <algorithm>
#include <cmath>

namespace desktop::uikit {
namespace {

constexpr CGFloat margin = 16;
constexpr CGFloat gap = 6;                // between labels side by side
constexpr CGFloat lineGap = 1;            // between labels above each other
constexpr CGFloat firstColumnWidth = 91;  // of value2

CGRect centered(CGFloat x, CGFloat width, CGSize wanted, CGFloat whole) {
  const CGFloat height = std::min(wanted.height, whole);
  return {{x, std::round(whole - height) / 2}, {std::max(width, 0.0), height}};
}

void sideBySide(const CellParts& parts, CGFloat left, CGFloat right, CellFrames& frames) {
  const CGFloat room = std::max(right - left - (parts.detail.width > 0 ? gap : 0), 0.0);
  CGFloat text = std::min(parts.text.width, room);
  CGFloat detail = std::min(parts.detail.width, room);
  if (text + detail > room) {
    text = std::min(text, std::max(room / 2, room - detail));
    detail = room - text;
  }
  frames.text = centered(left, text, parts.text, parts.content.height);
  frames.detail = centered(right - detail, detail, parts.detail, parts.content.height);
}

void inColumns(const CellParts& parts, CGFloat left, CGFloat right, CellFrames& frames) {
  const CGFloat first = std::min(firstColumnWidth, std::max(right - left, 0.0));
  const CGFloat second = left + first + gap;
  frames.text = centered(left, first, parts.text, parts.content.height);
  frames.detail = centered(second, right - second, parts.detail, parts.content.height);
}

void aboveEachOther(const CellParts& parts, CGFloat left, CGFloat right, CellFrames& frames) {
  const CGFloat width = std::max(right - left, 0.0);
  const CGFloat all = parts.text.height + lineGap + parts.detail.height;
  const CGFloat top = std::round(parts.content.height - all) / 2;
  frames.text = {{left, top}, {std::min(parts.text.width, width), parts.text.height}};
  frames.detail = {{left, top + parts.text.height + lineGap},
                   {std::min(parts.detail.width, width), parts.detail.height}};
}

}  // namespace

CGFloat cellTextInset(CGSize image) {
  return image.width > 0 ? margin + image.width + margin : margin;
}

CellFrames layOutCell(const CellParts& parts) {
  CellFrames frames;
  frames.image = centered(margin, parts.image.width, parts.image, parts.content.height);
  const CGFloat left = cellTextInset(parts.image);
  const CGFloat right = std::max(parts.content.width - parts.rightMargin, left);
  const bool hasDetail = parts.detail.width > 0;
  if (parts.style == CellParts::value1) {
    sideBySide(parts, left, right, frames);
  } else if (parts.style == CellParts::value2) {
    inColumns(parts, left, right, frames);
  } else if (parts.style == CellParts::subtitle && hasDetail) {
    aboveEachOther(parts, left, right, frames);
  } else {
    frames.text = centered(left, right - left, parts.text, parts.content.height);
  }
  return frames;
}

}  // namespace desktop::uikit
