// SPDX-License-Identifier: MIT
//
// The words above a section of a grid, and below the whole.
#pragma once

#include <string_view>
#include "desktop/uikit/lists/ui_collection_reusable_view.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

// A title, and where there is another line, that below it in smaller letters.
class GridHeader : public Bound<GridHeader, uikit::UICollectionReusableViewState> {
 public:
  using Bound::Bound;
  static Class classObject();
  static constexpr CGFloat height = 48;  // points

  void show(std::string_view title, std::string_view detail);

 private:
  UIView initWithFrame(CGRect frame);
  void layoutSubviews();

  Owned<UILabel> _title;
  Owned<UILabel> _detail;
};

// One line in the middle.
class GridFooter : public Bound<GridFooter, uikit::UICollectionReusableViewState> {
 public:
  using Bound::Bound;
  static Class classObject();
  static constexpr CGFloat height = 60;  // points

  void show(std::string_view text);

 private:
  UIView initWithFrame(CGRect frame);

  Owned<UILabel> _label;
};

}  // namespace desktop::photos_ui
