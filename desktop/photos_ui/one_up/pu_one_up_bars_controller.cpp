// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/pu_one_up_bars_controller.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/own_messages.h"
#include "desktop/platform.h"
#include "foundation/calendar_text.h"
#include "foundation/local_time.h"

namespace desktop::photos_ui {
namespace {

std::string titleOf(const library::LibraryItem& item) {
  return foundation::calendarText(foundation::localTime(item.modificationDate),
                                  foundation::CalendarUnit::day,
                                  foundation::Locale::ofUser("LC_TIME"));
}

}  // namespace

Class PUOneUpBarsController::classObject() {
  static const Class made = ClassBuilder<PUOneUpBarsController>("PUOneUpBarsController")
                                .method<"updateBars", &PUOneUpBarsController::updateBars>()
                                .method<"shareTouched:", &PUOneUpBarsController::shareTouched>()
                                .build();
  return made;
}

Owned<NSObject> PUOneUpBarsController::make(UIViewController oneUp, const BrowsedItems& items) {
  auto made = makeNew<NSObject>(classObject());
  of(made.get())._oneUp = oneUp;
  of(made.get())._items = &items;
  of(made.get()).makeToolbarItems();
  return made;
}

void PUOneUpBarsController::makeToolbarItems() {
  const auto share =
      UIBarButtonItem::withSystemItem(UIBarButtonItem::action, self(), selector<"shareTouched:">());
  _oneUp.setToolbarItems(NSArray::of(share.get()));
}

void PUOneUpBarsController::update() const {
  photos_ui::updateBars(self());
}

void PUOneUpBarsController::updateBars() {
  const library::ItemPointer item = _items->current();
  _oneUp.navigationItem().setTitle(NSString::make(item ? titleOf(*item) : ""));
}

// What is shared of a photo is where its file lies.
void PUOneUpBarsController::shareTouched(NSObject sender) {
  const library::ItemPointer item = _items->current();
  if (!item) return;
  const auto sheet = UIActivityViewController::withItems(NSArray::of(NSString::make(item->path)));
  sheet->popoverPresentationController().setBarButtonItem(UIBarButtonItem(sender.get()));
  _oneUp.present(sheet, UIViewController::animated, {});
}

}  // namespace desktop::photos_ui
