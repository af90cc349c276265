// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/settings/settings_list.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/large_title.h"
#include "desktop/photos_ui/settings/settings_page.h"

namespace desktop::photos_ui {

Class SettingsList::classObject() {
  using Self = SettingsList;
  static const Class made = ClassBuilder<Self>("SettingsList")
                                .method<"tableView:numberOfRowsInSection:", &Self::numberOfRows>()
                                .method<"tableView:cellForRowAtIndexPath:", &Self::cellForRow>()
                                .method<"tableView:didSelectRowAtIndexPath:", &Self::didSelectRow>()
                                .build();
  return made;
}

Owned<UIViewController> SettingsList::make(std::vector<settings::Page> pages) {
  auto made =
      makeWith<UIViewController, "initWithStyle:">(classObject(), NSInteger{UITableView::grouped});
  made->setTitle(NSString::make("Settings"));
  useLargeTitle(made, false);
  of(made.get())._pages = std::move(pages);
  return made;
}

NSInteger SettingsList::numberOfRows(UITableView, NSInteger) const {
  return static_cast<NSInteger>(_pages.size());
}

UITableViewCell SettingsList::cellForRow(UITableView table, NSIndexPath path) const {
  const NSString identifier = NSString::make("page");
  UITableViewCell cell = table.dequeueCell(identifier);
  if (!cell) cell = UITableViewCell::make(UITableViewCell::value1, identifier).autorelease();
  cell.textLabel().setText(NSString::make(_pages[static_cast<std::size_t>(path.row())].name));
  cell.setAccessoryType(UITableViewCell::disclosureIndicator);
  return cell;
}

void SettingsList::didSelectRow(UITableView, NSIndexPath path) {
  self().navigationController().push(
      SettingsPage::make(_pages[static_cast<std::size_t>(path.row())]), UIViewController::animated);
}

}  // namespace desktop::photos_ui
