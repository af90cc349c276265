// SPDX-License-Identifier: MIT
//
// UISegmentedControl: choices side by side, at most one of which is selected.
#pragma once

#include <string>
#include <vector>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/controls/ui_control.h"

namespace desktop::uikit {

class Canvas;

class UISegmentedControl : public Bound<UISegmentedControl, UIControlState> {
 public:
  static constexpr NSInteger noSegment = -1;

  using Bound::Bound;
  static Class classObject();
  // A new one without segments; +1.
  static Owned<UIControl> make();

  NSInteger numberOfSegments() const { return static_cast<NSInteger>(_labels.size()); }
  // Nil where there is no such segment.
  NSString titleOf(NSInteger segment) const;
  // Segments with these titles, and no others; nothing is selected.
  void setTitles(const std::vector<std::string>& titles);
  NSInteger selected() const { return _selected; }
  // What is no segment is none. Tells no target.
  void select(NSInteger segment);

  void drawContent(Canvas* canvas) const;

 private:
  UIControl initWithItems(NSArray titles);
  void layoutSubviews();
  CGSize sizeThatFits(CGSize size) const;
  void setEnabled(bool isEnabled);
  bool beginTracking(UITouch touch, UIEvent event);
  bool continueTracking(UITouch touch, UIEvent event);
  void endTracking(UITouch touch, UIEvent event);
  void cancelTracking(UIEvent event);
  void press(NSInteger segment);
  void addSegment(NSString title);
  NSInteger segmentAt(CGPoint point) const;
  CGRect frameOf(NSInteger segment) const;
  void colorLabels();

  ObjectList<UILabel> _labels;
  NSInteger _selected = noSegment;
  NSInteger _pressed = noSegment;  // the one that a finger came down on, while it is there
  NSInteger _first = noSegment;    // the one that it came down on
};

}  // namespace desktop::uikit
