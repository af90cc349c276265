// SPDX-License-Identifier: MIT
//
// A page of settings: groups of rows that show what is stored and store what a finger chooses.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/settings/page.h"
#include "desktop/settings/preferences.h"
#include "desktop/uikit/controllers/ui_table_view_controller.h"

namespace desktop::photos_ui {

class SettingsPage : public Bound<SettingsPage, uikit::UITableViewControllerState> {
 public:
  explicit SettingsPage(id self);
  static Class classObject();
  // +1.
  static Owned<UIViewController> make(settings::Page page);

 private:
  void viewWillAppear(bool animated);
  NSInteger numberOfSections(UITableView table) const;
  NSInteger numberOfRows(UITableView table, NSInteger section) const;
  NSString header(UITableView table, NSInteger section) const;
  NSString footer(UITableView table, NSInteger section) const;
  UITableViewCell cellForRow(UITableView table, NSIndexPath path);
  void didSelectRow(UITableView table, NSIndexPath path);

  const settings::Group& groupAt(NSInteger section) const;
  const settings::Row& rowAt(NSIndexPath path) const;
  // Stores the value; where that fails it says so, and the row shows again what is stored.
  void store(const settings::Row& row, const model::Value& value);

  settings::Page _page;
  settings::Preferences _preferences;
};

}  // namespace desktop::photos_ui
