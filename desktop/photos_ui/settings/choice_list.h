// SPDX-License-Identifier: MIT
//
// The choices of a row of a settings page, on a page of their own: the one that holds has a mark.
#pragma once

#include <functional>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/photos_ui/settings/setting_changed.h"
#include "desktop/platform.h"
#include "desktop/settings/page.h"
#include "desktop/uikit/controllers/ui_table_view_controller.h"

namespace desktop::photos_ui {

class ChoiceList : public Bound<ChoiceList, uikit::UITableViewControllerState> {
 public:
  using Bound::Bound;
  static Class classObject();
  // `value` is asked whenever the list is shown anew. +1.
  static Owned<UIViewController> make(settings::Row row, std::function<model::Value()> value,
                                      SettingChanged changed);

 private:
  NSInteger numberOfRows(UITableView table, NSInteger section) const;
  UITableViewCell cellForRow(UITableView table, NSIndexPath path) const;
  void didSelectRow(UITableView table, NSIndexPath path);

  settings::Row _row;
  std::function<model::Value()> _value;
  SettingChanged _changed;
};

}  // namespace desktop::photos_ui
