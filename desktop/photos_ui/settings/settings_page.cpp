// SPDX-License-Identifier: MIT
//
// The rows themselves keep nothing: what they show comes from the preferences, which are read anew
// whenever the page comes into sight. Rows and lists of choices reach the page by a reference that
// forgets it, since somebody may keep them longer.
#include "desktop/photos_ui/settings/settings_page.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/large_title.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/settings/choice_list.h"
#include "desktop/photos_ui/settings/setting_cells.h"
#include "desktop/uikit/base/weak_reference.h"

namespace desktop::photos_ui {
namespace {

NSString textOrNil(const std::string& text) {
  return text.empty() ? NSString() : NSString::make(text);
}

void tell(UIViewController over, const std::string& title, const std::string& message) {
  const auto alert = UIAlertController::make(NSString::make(title), NSString::make(message),
                                             UIAlertController::alert);
  alert.addAction(UIAlertAction::make(NSString::make("OK"), UIAlertAction::cancel, {}));
  over.present(alert, UIViewController::animated, {});
}

}  // namespace

Class SettingsPage::classObject() {
  using Self = SettingsPage;
  static const Class made = ClassBuilder<Self>("SettingsPage")
                                .method<"viewWillAppear:", &Self::viewWillAppear>()
                                .method<"numberOfSectionsInTableView:", &Self::numberOfSections>()
                                .method<"tableView:numberOfRowsInSection:", &Self::numberOfRows>()
                                .method<"tableView:titleForHeaderInSection:", &Self::header>()
                                .method<"tableView:titleForFooterInSection:", &Self::footer>()
                                .method<"tableView:cellForRowAtIndexPath:", &Self::cellForRow>()
                                .method<"tableView:didSelectRowAtIndexPath:", &Self::didSelectRow>()
                                .build();
  return made;
}

SettingsPage::SettingsPage(id self) : Bound(self), _preferences(host().deviceRoot) {}

Owned<UIViewController> SettingsPage::make(settings::Page page) {
  auto made =
      makeWith<UIViewController, "initWithStyle:">(classObject(), NSInteger{UITableView::grouped});
  made->setTitle(NSString::make(page.title));
  useLargeTitle(made, false);
  of(made.get())._page = std::move(page);
  return made;
}

void SettingsPage::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  _preferences.refresh();
  self().tableView().reloadData();
}

const settings::Group& SettingsPage::groupAt(NSInteger section) const {
  return _page.groups[static_cast<std::size_t>(section)];
}

const settings::Row& SettingsPage::rowAt(NSIndexPath path) const {
  return groupAt(path.section()).rows[static_cast<std::size_t>(path.row())];
}

NSInteger SettingsPage::numberOfSections(UITableView) const {
  return static_cast<NSInteger>(_page.groups.size());
}

NSInteger SettingsPage::numberOfRows(UITableView, NSInteger section) const {
  return static_cast<NSInteger>(groupAt(section).rows.size());
}

NSString SettingsPage::header(UITableView, NSInteger section) const {
  return textOrNil(groupAt(section).header);
}

NSString SettingsPage::footer(UITableView, NSInteger section) const {
  return textOrNil(groupAt(section).footer);
}

UITableViewCell SettingsPage::cellForRow(UITableView table, NSIndexPath path) {
  const settings::Row& row = rowAt(path);
  return settingCell(table, row, _preferences.valueOf(row),
                     [&row, page = uikit::WeakReference(self())](const model::Value& value) {
                       if (const auto living = page.get()) of(living).store(row, value);
                     });
}

void SettingsPage::didSelectRow(UITableView, NSIndexPath path) {
  const settings::Row& row = rowAt(path);
  if (row.kind != settings::RowKind::list || !row.isEnabled) return;
  const uikit::WeakReference page(self());
  const auto value = [&row, page] {
    const auto living = page.get();
    return living ? of(living)._preferences.valueOf(row) : model::Value();
  };
  const auto changed = [&row, page](const model::Value& chosen) {
    if (const auto living = page.get()) of(living).store(row, chosen);
  };
  self().navigationController().push(ChoiceList::make(row, value, changed),
                                     UIViewController::animated);
}

void SettingsPage::store(const settings::Row& row, const model::Value& value) {
  const auto failed = _preferences.store(row.place, value);
  if (!failed) return;
  self().tableView().reloadData();
  tell(self().navigationController(), "Not Saved", failed->reason);
}

}  // namespace desktop::photos_ui
