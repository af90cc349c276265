// SPDX-License-Identifier: MIT
//
// UITableViewHeaderFooterView: the title above or below a section of a table.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controls.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

class UITableViewHeaderFooterView : public Bound<UITableViewHeaderFooterView, UIViewState> {
 public:
  enum class Place { header, footer };

  using Bound::Bound;
  static Class classObject();

  // A title as a table of this kind shows it. Autoreleased.
  static UIView make(NSString title, Place place, bool isGrouped);
  // The height of such a title in a table of the width, in points.
  static CGFloat heightOf(NSString title, Place place, bool isGrouped, CGFloat width);

  UILabel textLabel() const { return _textLabel; }

 private:
  UIView initWithFrame(CGRect frame);
  void show(NSString title, Place place, bool isGrouped);
  CGSize textSize(CGFloat width) const;
  void layoutSubviews();

  Owned<UILabel> _textLabel;
  Place _place = Place::header;
  bool _isGrouped = false;
};

}  // namespace desktop::uikit
