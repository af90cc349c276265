// SPDX-License-Identifier: MIT
//
// A row that is on or off: its label, and a switch at its end.
#pragma once

#include "bridge/bound.h"
#include "desktop/photos_ui/settings/setting_changed.h"
#include "desktop/platform.h"
#include "desktop/settings/page.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"

namespace desktop::photos_ui {

class ToggleCell : public Bound<ToggleCell, uikit::UITableViewCellState> {
 public:
  static constexpr const char* identifier = "toggle setting";

  using Bound::Bound;
  static Class classObject();

  void show(const settings::Row& row, const model::Value& value, SettingChanged changed);

 private:
  UITableViewCell initWithStyle(NSInteger style, NSString reuseIdentifier);
  void toggled(NSObject sender);

  Owned<UIControl> _switch;
  SettingChanged _changed;
};

}  // namespace desktop::photos_ui
