// SPDX-License-Identifier: MIT
//
// The words above a section of a grid, and below the whole.
#pragma once

#include <string_view>

#include "bridge/bound.h"
#include "desktop/uikit/handles.h"

namespace desktop::photos_ui {

// A title, and where there is another line, that below it in smaller letters.
class GridHeader : public bridge::Bound<GridHeader, uikit::handles::UICollectionReusableView> {
 public:
  using Bound::Bound;
  static Class classObject();
  static constexpr CGFloat height = 48;  // points

  void show(std::string_view title, std::string_view detail);

 private:
  bridge::UIView initWithFrame(CGRect frame);
  void layoutSubviews();

  bridge::Owned<bridge::UILabel> _title;
  bridge::Owned<bridge::UILabel> _detail;
};

// One line in the middle.
class GridFooter : public bridge::Bound<GridFooter, uikit::handles::UICollectionReusableView> {
 public:
  using Bound::Bound;
  static Class classObject();
  static constexpr CGFloat height = 60;  // points

  void show(std::string_view text);

 private:
  bridge::UIView initWithFrame(CGRect frame);

  bridge::Owned<bridge::UILabel> _label;
};

}  // namespace desktop::photos_ui
