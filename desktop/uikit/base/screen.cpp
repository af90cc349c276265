// SPDX-License-Identifier: MIT
#include "desktop/uikit/base/screen.h"

#include <utility>

#include "desktop/uikit/base/geometry.h"

namespace desktop::uikit {
namespace {

constexpr std::size_t damageRects = 8;  // more are joined into one

}  // namespace

void Damage::add(CGRect rect) {
  if (uikit::isEmpty(rect)) return;
  for (CGRect& known : _rects) {
    if (!intersects(known, rect)) continue;
    known = unionOf(known, rect);
    return;
  }
  _rects.push_back(rect);
  if (_rects.size() <= damageRects) return;
  CGRect all;
  for (const CGRect& known : _rects) all = unionOf(all, known);
  _rects = {all};
}

std::vector<CGRect> Damage::take() {
  return std::exchange(_rects, {});
}

Screen& screen() {
  static auto& made = *new Screen;
  return made;
}

}  // namespace desktop::uikit
