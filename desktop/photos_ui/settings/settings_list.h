// SPDX-License-Identifier: MIT
//
// The pages of settings of several extensions, by their titles.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/settings/page.h"
#include "desktop/uikit/controllers/ui_table_view_controller.h"

namespace desktop::photos_ui {

class SettingsList : public Bound<SettingsList, uikit::UITableViewControllerState> {
 public:
  using Bound::Bound;
  static Class classObject();
  // +1.
  static Owned<UIViewController> make(std::vector<settings::Page> pages);

 private:
  NSInteger numberOfRows(UITableView table, NSInteger section) const;
  UITableViewCell cellForRow(UITableView table, NSIndexPath path) const;
  void didSelectRow(UITableView table, NSIndexPath path);

  std::vector<settings::Page> _pages;
};

}  // namespace desktop::photos_ui
