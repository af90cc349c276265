// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/settings/settings_screen.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/settings/settings_list.h"
#include "desktop/photos_ui/settings/settings_page.h"
#include "desktop/settings/page_folder.h"

namespace desktop::photos_ui {
namespace {

constexpr auto doneItem = UIBarButtonItem::SystemItem{0};  // the platform's number

Owned<UIViewController> explanation(const std::string& why) {
  return SettingsPage::make(settings::explainedPage("Settings", why));
}

Owned<UIViewController> rootOf(const std::string& folder) {
  auto pages = settings::readPages(folder);
  if (!pages) return explanation(folder + ": " + pages.error().reason + ".");
  if (pages->empty()) return explanation("No extension has settings here.");
  if (pages->size() == 1) return SettingsPage::make(std::move(pages->front()));
  return SettingsList::make(*std::move(pages));
}

}  // namespace

Class SettingsScreen::classObject() {
  static const Class made = ClassBuilder<SettingsScreen>("SettingsScreen")
                                .method<"done:", &SettingsScreen::done>()
                                .build();
  return made;
}

void SettingsScreen::presentOver(UIViewController controller, UIViewController::Animated how) {
  const auto root = rootOf(host().settingsFolder);
  const auto made =
      makeWith<UIViewController, "initWithRootViewController:">(classObject(), root.get());
  const auto item = UIBarButtonItem::withSystemItem(doneItem, made.get(), selector<"done:">());
  root->navigationItem().setRightBarButtonItems(NSArray::of(item.get()));
  controller.present(made, how, {});
}

void SettingsScreen::done(NSObject) {
  self().dismiss(UIViewController::animated, {});
}

}  // namespace desktop::photos_ui
