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
#include "desktop/platform.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"
#include "desktop/uikit/graphics/ui_color.h"

namespace desktop::photos_ui {
namespace {

constexpr NSInteger overFullScreen = 5;  // UIModalPresentationOverFullScreen

// As wide and high as the item is; a square where its shape is not known.
CGSize shapeOf(const library::ItemPointer& item) {
  if (!host().library || !item) return {1, 1};
  const auto& facts = host().library->facts(*item);
  if (!facts || (*facts)->pixelWidth == 0 || (*facts)->pixelHeight == 0) return {1, 1};
  return {static_cast<CGFloat>((*facts)->pixelWidth), static_cast<CGFloat>((*facts)->pixelHeight)};
}

}  // namespace

Class PUOneUpViewControllerState::classObject() {
  static const Class made =
      ClassBuilder<PUOneUpViewControllerState>("PUOneUpViewController")
          .field("_tilingView", "@")
          .method<"init", &PUOneUpViewControllerState::init>()
          .method<"viewDidLoad", &PUOneUpViewControllerState::viewDidLoad>()
          .method<"viewWillAppear:", &PUOneUpViewControllerState::viewWillAppear>()
          .method<"viewDidAppear:", &PUOneUpViewControllerState::viewDidAppear>()
          .method<"viewWillDisappear:", &PUOneUpViewControllerState::viewWillDisappear>()
          .method<"viewWillLayoutSubviews", &PUOneUpViewControllerState::viewWillLayoutSubviews>()
          .method<"isPresentedForPreview", &PUOneUpViewControllerState::isPresentedForPreview>()
          .method<"_assetReferenceAtIndexPath:layout:",
                  &PUOneUpViewControllerState::assetReference>()
          .method<"_setTilingView:", &PUOneUpViewControllerState::setTilingView>()
          .method<"barsController", &PUOneUpViewControllerState::barsController>()
          .method<"swapHalves:", &PUOneUpViewControllerState::swapHalves>()
          .method<"handleTap:", &PUOneUpViewControllerState::handleTap>()
          .method<"handleTapBeside:", &PUOneUpViewControllerState::handleTapBeside>()
          .method<"gestureRecognizer:shouldReceiveTouch:",
                  &PUOneUpViewControllerState::shouldReceiveTouch>()
          .build();
  return made;
}

PUOneUpViewControllerState::~PUOneUpViewControllerState() {
  setObjectField(self(), "_tilingView", {});
}

Owned<UIViewController> PUOneUpViewControllerState::make(ItemListPointer items, std::size_t index,
                                                         Presentation presentation) {
  auto made = makeNew<UIViewController>(classObject());
  PUOneUpViewControllerState& controller = of(made.get());
  controller._items.set(std::move(items), index);
  controller._presentation = presentation;
  if (presentation == Presentation::preview) made->setModalPresentationStyle(overFullScreen);
  made->setHidesBottomBarWhenPushed(true);
  useLargeTitle(made.get(), false);
  return made;
}

UIViewController PUOneUpViewControllerState::init() {
  const auto object = super<UIViewController, "init">();
  _layout = makeNew<NSObject>(PUOneUpTilingLayoutState::classObject());
  _bars = PUOneUpBarsController::make(UIViewController(self().get()), _items);
  return object;
}

void PUOneUpViewControllerState::viewDidLoad() {
  super<void, "viewDidLoad">();
  const bool isPreview = isPresentedForPreview();
  self().view().setBackgroundColor(isPreview ? UIColor::white(0, 0.4) : UIColor::whiteColor());
  const auto tiling = makeTilingView();
  self().view().addSubview(tiling);
  self().setTilingView(tiling.get());
  _pages.onChange([this](std::size_t page) { moved(page); });
  showItems(_items.list(), _items.index());
  if (!isPreview) return;
  const auto beside =
      makeRecognizer<UITapGestureRecognizer>(self(), selector<"handleTapBeside:">());
  beside->setDelegate(self());
  self().view().addGestureRecognizer(beside);
}

Owned<UIScrollView> PUOneUpViewControllerState::makeTilingView() {
  auto tiling = PhotoPages::makeView(self().view().bounds());
  if (isPresentedForPreview()) {
    dressAsCard(tiling);
    tiling->setScrollEnabled(false);
    return tiling;
  }
  const auto tap = makeRecognizer<UITapGestureRecognizer>(self(), selector<"handleTap:">());
  const auto twice = makeRecognizer<UITapGestureRecognizer>({}, nullptr);
  twice->setNumberOfTapsRequired(2);
  tap->requireToFail(twice.get());
  tiling->addGestureRecognizer(twice);
  tiling->addGestureRecognizer(tap);
  return tiling;
}

CGRect PUOneUpViewControllerState::pagesFrame() const {
  const CGRect all = self().view().bounds();
  return isPresentedForPreview() ? cardFrame(all, shapeOf(currentItem())) : all;
}

void PUOneUpViewControllerState::viewWillLayoutSubviews() {
  _pages.view().setFrame(pagesFrame());
}

// The message is also how extensions learn of the view.
void PUOneUpViewControllerState::setTilingView(UIView view) {
  _pages.setView(view);
  setObjectField(self(), "_tilingView", view);
}

void PUOneUpViewControllerState::showItems(ItemListPointer items, std::size_t index) {
  _items.set(std::move(items), index);
  tellLayout();
  _pages.show(_items);
}

void PUOneUpViewControllerState::moved(std::size_t index) {
  _items.goTo(index);
  tellLayout();
  updateBars();
}

void PUOneUpViewControllerState::tellLayout() const {
  PUOneUpTilingLayoutState::of(_layout.get()).setCurrent(_items.currentPath());
}

void PUOneUpViewControllerState::updateBars() const {
  PUOneUpBarsController::of(_bars.get()).update();
}

void PUOneUpViewControllerState::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  if (!isPresentedForPreview()) updateBars();
}

void PUOneUpViewControllerState::viewDidAppear(bool animated) {
  super<void, "viewDidAppear:">(animated);
  if (isPresentedForPreview()) return;
  _visibility.showToolbar(animated);
  updateBars();
}

void PUOneUpViewControllerState::viewWillDisappear(bool animated) {
  super<void, "viewWillDisappear:">(animated);
  if (isPresentedForPreview()) return;
  showBars(true, animated);
  _visibility.hideToolbarForAnother(animated);
}

PUAssetReference PUOneUpViewControllerState::assetReference(NSIndexPath path,
                                                            PUOneUpTilingLayout) const {
  const library::ItemPointer item = _items.at(path);
  if (!item || !host().library) return {};
  return faces::PUAssetReferenceState::make(faces::PHAssetState::make(*host().library, item), path);
}

// The film is an item of its own in the place of its still, so that whoever asks for the item on
// show is told of it.
void PUOneUpViewControllerState::swapHalves(NSObject) {
  if (!_items.otherHalf()) return;
  showItems(_items.listWithOtherHalf(), _items.index());
  updateBars();
}

void PUOneUpViewControllerState::handleTap(UIGestureRecognizer) {
  showBars(!_visibility.areShown(), true);
}

void PUOneUpViewControllerState::handleTapBeside(UIGestureRecognizer) {
  leave();
}

bool PUOneUpViewControllerState::shouldReceiveTouch(UIGestureRecognizer, UITouch touch) const {
  return !contains(pagesFrame(), touch.locationIn(self().view()));
}

void PUOneUpViewControllerState::showBars(bool shown, bool animated) {
  if (_visibility.show(shown, animated)) updateBars();
}

// What is shown stays on show where its file is still there; otherwise what comes next is.
void PUOneUpViewControllerState::libraryChanged(const library::LibraryChange&) {
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
void PUOneUpViewControllerState::leave() {
  const UIViewController controller(self().get());
  if (isPresentedForPreview()) return controller.dismiss(UIViewController::animated, {});
  const auto navigation = controller.navigationController();
  if (!navigation) return;
  const auto stack = uikit::UINavigationControllerState::of(navigation).stack();
  const auto place = std::ranges::find(stack, controller, &Owned<UIViewController>::get);
  if (place != stack.begin() && place != stack.end())
    navigation.popTo(std::prev(place)->get(), true);
}

bool performOneUpAction(UIViewController controller, OneUpAction action) {
  return isKindOf(controller, PUOneUpViewControllerState::classObject()) &&
         PUOneUpViewControllerState::of(controller).perform(action);
}

}  // namespace desktop::photos_ui
