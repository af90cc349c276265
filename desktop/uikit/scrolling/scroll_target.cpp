// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/scroll_target.h"

#include <algorithm>

namespace desktop::uikit {

CGFloat offsetShowing(CGFloat start, CGFloat length, const Sight& sight, ShownAt where) {
  const CGFloat atStart = start - sight.coveredBefore;
  const CGFloat atEnd = start + length + sight.coveredAfter - sight.length;
  switch (where) {
    case ShownAt::start:
      return atStart;
    case ShownAt::middle:
      return (atStart + atEnd) / 2;
    case ShownAt::end:
      return atEnd;
    case ShownAt::nearest:
      break;
  }
  return std::max(std::min(sight.offset, atStart), atEnd);
}

}  // namespace desktop::uikit
