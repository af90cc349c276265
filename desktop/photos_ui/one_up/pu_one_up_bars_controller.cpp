// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/pu_one_up_bars_controller.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/own_messages.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/bar_glyphs.h"
#include "desktop/uikit/bars/ui_bar_button_item.h"
#include "foundation/calendar_text.h"
#include "foundation/local_time.h"

namespace desktop::photos_ui {
namespace {

using uikit::Glyph;

std::string titleOf(const library::LibraryItem& item) {
  return foundation::calendarText(foundation::localTime(item.modificationDate),
                                  foundation::CalendarUnit::day,
                                  foundation::Locale::ofUser("LC_TIME"));
}

Owned<UIBarButtonItem> makeTool(Glyph glyph, NSObject target, SEL action) {
  return UIBarButtonItem::withSystemItem(static_cast<UIBarButtonItem::SystemItem>(glyph), target,
                                         action);
}

Owned<UIBarButtonItem> makeSpace() {
  constexpr auto flexible =
      static_cast<UIBarButtonItem::SystemItem>(uikit::UIBarButtonItemState::flexibleSpace);
  return UIBarButtonItem::withSystemItem(flexible, {}, nullptr);
}

}  // namespace

Class PUOneUpBarsController::classObject() {
  static const Class made =
      ClassBuilder<PUOneUpBarsController>("PUOneUpBarsController")
          .method<"updateBars", &PUOneUpBarsController::updateBars>()
          .method<"shareTouched:", &PUOneUpBarsController::shareTouched>()
          .method<"favouriteTouched:", &PUOneUpBarsController::favouriteTouched>()
          .build();
  return made;
}

Owned<NSObject> PUOneUpBarsController::make(UIViewController oneUp, const BrowsedItems& items) {
  auto made = makeNew<NSObject>(classObject());
  of(made.get())._oneUp = oneUp;
  of(made.get())._items = &items;
  of(made.get()).showTools({});
  return made;
}

PUOneUpBarsController::Tools PUOneUpBarsController::toolsNow() const {
  const library::ItemPointer item = _items->current();
  if (!item || !host().library) return {};
  return {.isFavourite = host().library->isFavourite(*item),
          .isLivePhoto = _items->otherHalf() != nullptr};
}

// The halves of a Live Photo are swapped by the controller.
void PUOneUpBarsController::showTools(Tools tools) {
  _tools = tools;
  const auto share = makeTool(Glyph::action, self(), selector<"shareTouched:">());
  const auto favourite = makeTool(tools.isFavourite ? Glyph::filledHeart : Glyph::heart, self(),
                                  selector<"favouriteTouched:">());
  const auto film = makeTool(Glyph::livePhoto, _oneUp, selector<"swapHalves:">());
  const auto items = makeNew<NSMutableArray>();
  items->add(share.get());
  items->add(makeSpace().get());
  if (tools.isLivePhoto) {
    items->add(film.get());
    items->add(makeSpace().get());
  }
  items->add(favourite.get());
  _oneUp.setToolbarItems(NSArray(items.get().get()));
}

void PUOneUpBarsController::update() const {
  photos_ui::updateBars(self());
}

void PUOneUpBarsController::updateBars() {
  const library::ItemPointer item = _items->current();
  _oneUp.navigationItem().setTitle(NSString::make(item ? titleOf(*item) : ""));
  if (const Tools tools = toolsNow(); tools != _tools) showTools(tools);
}

// What is shared of a photo is where its file lies.
void PUOneUpBarsController::shareTouched(NSObject sender) {
  const library::ItemPointer item = _items->current();
  if (!item) return;
  const auto sheet = UIActivityViewController::withItems(NSArray::of(NSString::make(item->file())));
  sheet->popoverPresentationController().setBarButtonItem(UIBarButtonItem(sender.get()));
  _oneUp.present(sheet, UIViewController::animated, {});
}

void PUOneUpBarsController::favouriteTouched(NSObject) {
  const library::ItemPointer item = _items->current();
  if (!item || !host().library) return;
  const auto kept = host().library->setFavourite(*item, !_tools.isFavourite);
  if (kept) return update();
  const auto alert =
      UIAlertController::make(NSString::make("Favorite Not Saved"),
                              NSString::make(kept.error().reason), UIAlertController::alert);
  alert.addAction(UIAlertAction::make(NSString::make("OK"), UIAlertAction::cancel, {}));
  _oneUp.present(alert, UIViewController::animated, {});
}

}  // namespace desktop::photos_ui
