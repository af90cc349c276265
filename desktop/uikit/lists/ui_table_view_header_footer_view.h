// SPDX-License-Identifier: MIT
//
// UITableViewHeaderFooterView: the title above or below a section of a table.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_controls.h"

namespace desktop::uikit {

class UITableViewHeaderFooterView
    : public bridge::Bound<UITableViewHeaderFooterView, bridge::UIView> {
 public:
  enum class Place { header, footer };

  using Bound::Bound;
  static Class classObject();

  // A title as a table of this kind shows it. Autoreleased.
  static bridge::UIView make(bridge::NSString title, Place place, bool isGrouped);
  // The height of such a title in a table of the width, in points.
  static CGFloat heightOf(bridge::NSString title, Place place, bool isGrouped, CGFloat width);

  bridge::UILabel textLabel() const { return _textLabel; }

 private:
  bridge::UIView initWithFrame(CGRect frame);
  void show(bridge::NSString title, Place place, bool isGrouped);
  CGSize textSize(CGFloat width) const;
  void layoutSubviews();

  bridge::Owned<bridge::UILabel> _textLabel;
  Place _place = Place::header;
  bool _isGrouped = false;
};

}  // namespace desktop::uikit
