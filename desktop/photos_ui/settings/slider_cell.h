// SPDX-License-Identifier: MIT
//
// A row with a slider, and its value as a number where the row asks for that. Its label is only
// what it is called.
#pragma once

#include "bridge/bound.h"
#include "desktop/photos_ui/settings/setting_changed.h"
#include "desktop/platform.h"
#include "desktop/settings/page.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"

namespace desktop::photos_ui {

class SliderCell : public Bound<SliderCell, uikit::UITableViewCellState> {
 public:
  static constexpr const char* identifier = "slider setting";

  using Bound::Bound;
  static Class classObject();

  void show(const settings::Row& row, const model::Value& value, SettingChanged changed);

 private:
  UITableViewCell initWithStyle(NSInteger style, NSString reuseIdentifier);
  void layoutSubviews();
  void moved(NSObject sender);
  void letGo(NSObject sender);

  double value() const;

  Owned<UIControl> _slider;
  Owned<UILabel> _number;
  settings::Range _range;
  SettingChanged _changed;
};

}  // namespace desktop::photos_ui
