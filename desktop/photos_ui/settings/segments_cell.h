// SPDX-License-Identifier: MIT
//
// A row of choices side by side, which fill it. Its label is only what it is called.
#pragma once

#include "bridge/bound.h"
#include "desktop/photos_ui/settings/setting_changed.h"
#include "desktop/platform.h"
#include "desktop/settings/page.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"

namespace desktop::photos_ui {

class SegmentsCell : public Bound<SegmentsCell, uikit::UITableViewCellState> {
 public:
  static constexpr const char* identifier = "segments setting";

  using Bound::Bound;
  static Class classObject();

  void show(const settings::Row& row, const model::Value& value, SettingChanged changed);

 private:
  UITableViewCell initWithStyle(NSInteger style, NSString reuseIdentifier);
  void layoutSubviews();
  void selected(NSObject sender);

  Owned<UIControl> _segments;
  std::vector<model::Value> _values;  // of the segments
  SettingChanged _changed;
};

}  // namespace desktop::photos_ui
