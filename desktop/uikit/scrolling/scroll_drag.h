// SPDX-License-Identifier: MIT
//
// A finger that drags content: from where, along which ways, and to which page.
#pragma once

#include "bridge/geometry.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class ScrollDrag {
 public:
  bool isUnderWay() const { return _isUnderWay; }
  // The content offset where it began.
  CGPoint start() const { return _start; }

  // With a lock the drag keeps to the direction that the finger took so far.
  void begin(CGPoint offset, CGPoint way, CGPoint velocity, bool isLocked);
  // Whether it was under way.
  bool end();
  // A finger that dragged nothing let go of content here.
  void letGoAt(CGPoint offset) { _start = offset; }

  // Of a way, or a velocity, what content follows that can be dragged across and down.
  CGPoint along(CGPoint way, bool across, bool down) const;
  // The page next to where the drag began to which content goes that was let go of here with a
  // velocity in points a second. A page without size is none: the offset stays.
  CGPoint pageNear(CGPoint offset, CGPoint velocity, CGSize page) const;

 private:
  bool _isUnderWay = false;
  CGPoint _start;
  bool _locksAcross = false;  // this drag goes down only
  bool _locksDown = false;
};

}  // namespace desktop::uikit
