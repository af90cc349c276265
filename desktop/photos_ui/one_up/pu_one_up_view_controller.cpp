// SPDX-License-Identifier: MIT
//
// The controller goes through items: when a page turns, the library changes or a tap comes it has
// its parts follow, and then the bars, always by message and last, since extensions add to both.
#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/faces/photos/ph_asset.h"
#include "desktop/faces/photos/pu_asset_reference.h"
#include "desktop/photos_ui/base/large_title.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/one_up/preview_card.h"
#include "desktop/photos_ui/one_up/pu_one_up_bars_controller.h"
#include "desktop/photos_ui/one_up/pu_one_up_tiling_layout.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"
#include "desktop/uikit/graphics/ui_color.h"

namespace desktop::photos_ui {
namespace {

using bridge::Owned;
using bridge::send;
using uikit::handles::makeRecognizer;
using uikit::handles::UITapGestureRecognizer;

constexpr NSInteger overFullScreen = 5;  // UIModalPresentationOverFullScreen

// As wide and high as the item is; a square where its shape is not known.
CGSize shapeOf(const library::ItemPointer& item) {
  if (!host().library || !item) return {1, 1};
  const auto& facts = host().library->facts(*item);
  if (!facts || (*facts)->pixelWidth == 0 || (*facts)->pixelHeight == 0) return {1, 1};
  return {static_cast<CGFloat>((*facts)->pixelWidth), static_cast<CGFloat>((*facts)->pixelHeight)};
}

}  // namespace

Class PUOneUpViewController::classObject() {
  static const Class made =
      bridge::ClassBuilder<PUOneUpViewController>("PUOneUpViewController")
          .field("_tilingView", "@")
          .method<"init", &PUOneUpViewController::init>()
          .method<"viewDidLoad", &PUOneUpViewController::viewDidLoad>()
          .method<"viewWillAppear:", &PUOneUpViewController::viewWillAppear>()
          .method<"viewDidAppear:", &PUOneUpViewController::viewDidAppear>()
          .method<"viewWillDisappear:", &PUOneUpViewController::viewWillDisappear>()
          .method<"viewWillLayoutSubviews", &PUOneUpViewController::viewWillLayoutSubviews>()
          .method<"isPresentedForPreview", &PUOneUpViewController::isPresentedForPreview>()
          .method<"_assetReferenceAtIndexPath:layout:", &PUOneUpViewController::assetReference>()
          .method<"_setTilingView:", &PUOneUpViewController::setTilingView>()
          .method<"barsController", &PUOneUpViewController::barsController>()
          .method<"handleTap:", &PUOneUpViewController::handleTap>()
          .method<"handleTapBeside:", &PUOneUpViewController::handleTapBeside>()
          .method<"gestureRecognizer:shouldReceiveTouch:",
                  &PUOneUpViewController::shouldReceiveTouch>()
          .build();
  return made;
}

PUOneUpViewController::~PUOneUpViewController() {
  bridge::setObjectField(self(), "_tilingView", {});
}

bridge::Owned<bridge::UIViewController> PUOneUpViewController::make(ItemListPointer items,
                                                                    std::size_t index,
                                                                    Presentation presentation) {
  auto made = bridge::Owned<bridge::UIViewController>::adopt(
      send<bridge::UIViewController, "new">(classObject()));
  PUOneUpViewController& controller = of(made.get());
  controller._items.set(std::move(items), index);
  controller._presentation = presentation;
  if (presentation == Presentation::preview)
    send<void, "setModalPresentationStyle:">(made.get(), overFullScreen);
  send<void, "setHidesBottomBarWhenPushed:">(made.get(), true);
  useLargeTitle(made.get(), false);
  return made;
}

bridge::UIViewController PUOneUpViewController::init() {
  const auto object = super<bridge::UIViewController, "init">();
  _layout = bridge::Owned<bridge::NSObject>::adopt(
      send<bridge::NSObject, "new">(PUOneUpTilingLayout::classObject()));
  _bars = PUOneUpBarsController::make(bridge::UIViewController(self().get()), _items);
  return object;
}

void PUOneUpViewController::viewDidLoad() {
  super<void, "viewDidLoad">();
  const bool isPreview = isPresentedForPreview();
  me().setBackgroundColor(isPreview ? bridge::UIColor::white(0, 0.4)
                                    : bridge::UIColor::whiteColor());
  const auto tiling = makeTilingView();
  me().addSubview(tiling);
  send<void, "_setTilingView:">(self(), tiling.get());
  _pages.onChange([this](std::size_t page) { moved(page); });
  showItems(_items.list(), _items.index());
  if (!isPreview) return;
  const auto beside =
      makeRecognizer<UITapGestureRecognizer>(self(), bridge::selector<"handleTapBeside:">());
  beside->setDelegate(self());
  me().addGestureRecognizer(beside);
}

bridge::Owned<bridge::UIView> PUOneUpViewController::makeTilingView() {
  auto tiling = PhotoPages::makeView(me().bounds());
  if (isPresentedForPreview()) {
    dressAsCard(tiling);
    send<void, "setScrollEnabled:">(tiling.get(), false);
    return tiling;
  }
  const auto tap = makeRecognizer<UITapGestureRecognizer>(self(), bridge::selector<"handleTap:">());
  const auto twice = makeRecognizer<UITapGestureRecognizer>({}, nullptr);
  twice->setNumberOfTapsRequired(2);
  send<void, "requireGestureRecognizerToFail:">(tap.get(), twice.get());
  tiling->addGestureRecognizer(twice);
  tiling->addGestureRecognizer(tap);
  return tiling;
}

CGRect PUOneUpViewController::pagesFrame() const {
  const CGRect all = me().bounds();
  return isPresentedForPreview() ? cardFrame(all, shapeOf(currentItem())) : all;
}

void PUOneUpViewController::viewWillLayoutSubviews() {
  _pages.view().setFrame(pagesFrame());
}

// The message is also how extensions learn of the view.
void PUOneUpViewController::setTilingView(bridge::UIView view) {
  _pages.setView(view);
  bridge::setObjectField(self(), "_tilingView", view);
}

void PUOneUpViewController::showItems(ItemListPointer items, std::size_t index) {
  _items.set(std::move(items), index);
  tellLayout();
  _pages.show(_items);
}

void PUOneUpViewController::moved(std::size_t index) {
  _items.goTo(index);
  tellLayout();
  updateBars();
}

void PUOneUpViewController::tellLayout() const {
  PUOneUpTilingLayout::of(_layout.get()).setCurrent(_items.currentPath());
}

void PUOneUpViewController::updateBars() const {
  PUOneUpBarsController::of(_bars.get()).update();
}

void PUOneUpViewController::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  if (!isPresentedForPreview()) updateBars();
}

void PUOneUpViewController::viewDidAppear(bool animated) {
  super<void, "viewDidAppear:">(animated);
  if (isPresentedForPreview()) return;
  _visibility.showToolbar(animated);
  updateBars();
}

void PUOneUpViewController::viewWillDisappear(bool animated) {
  super<void, "viewWillDisappear:">(animated);
  if (isPresentedForPreview()) return;
  showBars(true, animated);
  _visibility.hideToolbarForAnother(animated);
}

bridge::PUAssetReference PUOneUpViewController::assetReference(bridge::NSIndexPath path,
                                                               bridge::PUOneUpTilingLayout) const {
  const library::ItemPointer item = _items.at(path);
  if (!item || !host().library) return {};
  return faces::PUAssetReference::make(faces::PHAsset::make(*host().library, item), path);
}

void PUOneUpViewController::handleTap(bridge::UIGestureRecognizer) {
  showBars(!_visibility.areShown(), true);
}

void PUOneUpViewController::handleTapBeside(bridge::UIGestureRecognizer) {
  leave();
}

bool PUOneUpViewController::shouldReceiveTouch(bridge::UIGestureRecognizer,
                                               bridge::UITouch touch) const {
  return !bridge::contains(pagesFrame(), touch.locationIn(me()));
}

void PUOneUpViewController::showBars(bool shown, bool animated) {
  if (_visibility.show(shown, animated)) updateBars();
}

// What is shown stays on show where its file is still there; otherwise what comes next is.
void PUOneUpViewController::libraryChanged(const library::LibraryChange&) {
  if (!host().library || !_pages.view()) return;
  const auto items =
      _items.listAfterChange([](const std::string& uuid) { return host().library->itemOf(uuid); });
  if (!items) return;
  const auto place = items->placeAfterChange(*_items.list(), _items.index());
  showItems(items, place.value_or(0));
  updateBars();
  if (!place) leave();
}

// Whatever was opened from here goes too.
void PUOneUpViewController::leave() {
  const bridge::UIViewController controller(self().get());
  if (isPresentedForPreview()) return controller.dismiss(bridge::UIViewController::animated, {});
  const auto navigation = controller.navigationController();
  if (!navigation) return;
  const auto stack = uikit::UINavigationController::of(navigation).stack();
  const auto place = std::ranges::find(stack, controller, &Owned<bridge::UIViewController>::get);
  if (place != stack.begin() && place != stack.end())
    send<bridge::NSArray, "popToViewController:animated:">(navigation, std::prev(place)->get(),
                                                           true);
}

bool performOneUpAction(bridge::UIViewController controller, OneUpAction action) {
  return bridge::isKindOf(controller, PUOneUpViewController::classObject()) &&
         PUOneUpViewController::of(controller).perform(action);
}

}  // namespace desktop::photos_ui
