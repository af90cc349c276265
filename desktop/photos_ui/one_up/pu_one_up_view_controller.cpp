// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"

#include <algorithm>
#include <utility>

#include "bridge/class_builder.h"
#include "desktop/faces/photos/ph_asset.h"
#include "desktop/faces/photos/pu_asset_reference.h"
#include "desktop/photos_ui/base/large_title.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/one_up/pu_one_up_bars_controller.h"
#include "desktop/photos_ui/one_up/pu_one_up_photo_view.h"
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
constexpr CGFloat cardMargin = 16;       // points, around a preview
constexpr CGFloat cardRadius = 12;       // points
constexpr CGFloat leastCardHeight = 96;  // points
constexpr double barsTime = 0.25;        // seconds

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
  if (_tilingView) pages().pageChanged = nullptr;
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
  pages().pageChanged = [this](std::size_t page) { moved(page); };
  pages().pageHidden = [](bridge::UIView page) { PUOneUpPhotoView::of(page).zoomTo(1, {}, false); };
  showItems(_items.list(), _items.index());
  if (!isPreview) return;
  const auto beside =
      makeRecognizer<UITapGestureRecognizer>(self(), bridge::selector<"handleTapBeside:">());
  beside->setDelegate(self());
  me().addGestureRecognizer(beside);
}

bridge::Owned<bridge::UIView> PUOneUpViewController::makeTilingView() {
  auto tiling = bridge::Owned<bridge::UIView>::adopt(send<bridge::UIView, "initWithFrame:">(
      send<id, "alloc">(PUTilingView::classObject()), me().bounds()));
  const bool isPreview = isPresentedForPreview();
  send<void, "setPagingEnabled:">(tiling.get(), true);
  send<void, "setShowsHorizontalScrollIndicator:">(tiling.get(), false);
  send<void, "setContentInsetAdjustmentBehavior:">(tiling.get(), NSInteger{2});
  if (isPreview) {
    tiling->setBackgroundColor(bridge::UIColor::whiteColor());
    tiling->layer().setCornerRadius(cardRadius);
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

// As high as the photo is at a width; a square where its shape is not known.
CGFloat PUOneUpViewController::cardHeight(CGFloat width) const {
  if (!host().library || !currentItem()) return width;
  const auto& facts = host().library->facts(*currentItem());
  if (!facts || (*facts)->pixelWidth == 0 || (*facts)->pixelHeight == 0) return width;
  return width * static_cast<CGFloat>((*facts)->pixelHeight) /
         static_cast<CGFloat>((*facts)->pixelWidth);
}

// A preview is a card in the middle of what it was called from, as large as there is room.
CGRect PUOneUpViewController::cardFrame() const {
  const CGRect all = me().bounds();
  if (!isPresentedForPreview()) return all;
  const CGFloat width = all.size.width - 2 * cardMargin;
  const CGFloat height = std::max(cardHeight(width), leastCardHeight);
  const CGFloat factor = std::min(1.0, (all.size.height - 4 * cardMargin) / height);
  const CGSize size = {width * factor, height * factor};
  return {{(all.size.width - size.width) / 2, (all.size.height - size.height) / 2}, size};
}

void PUOneUpViewController::viewWillLayoutSubviews() {
  if (_tilingView) _tilingView->setFrame(cardFrame());
}

// The message is also how extensions learn of the view.
void PUOneUpViewController::setTilingView(bridge::UIView view) {
  _tilingView = bridge::Owned<bridge::UIView>::retain(view);
  bridge::setObjectField(self(), "_tilingView", view);
}

void PUOneUpViewController::showItems(ItemListPointer items, std::size_t index) {
  const library::ItemPointer before = currentItem();
  const auto makePage = [items](std::size_t page) {
    return PUOneUpPhotoView::make(items->at(page));
  };
  _items.set(std::move(items), index);
  setCurrent(index);
  if (before && currentItem() == before)
    pages().replaceOtherPages(_items.list()->size(), index, makePage);
  else
    pages().setPages(_items.list()->size(), index, makePage);
}

void PUOneUpViewController::setCurrent(std::size_t index) {
  _items.goTo(index);
  PUOneUpTilingLayout::of(_layout.get()).setCurrent(_items.currentPath());
}

void PUOneUpViewController::moved(std::size_t index) {
  setCurrent(index);
  PUOneUpBarsController::of(_bars.get()).update();
}

void PUOneUpViewController::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  if (!isPresentedForPreview()) PUOneUpBarsController::of(_bars.get()).update();
}

void PUOneUpViewController::viewDidAppear(bool animated) {
  super<void, "viewDidAppear:">(animated);
  if (isPresentedForPreview()) return;
  send<void, "setToolbarHidden:animated:">(
      bridge::UIViewController(self().get()).navigationController(), !_areBarsShown, animated);
  PUOneUpBarsController::of(_bars.get()).update();
}

void PUOneUpViewController::viewWillDisappear(bool animated) {
  super<void, "viewWillDisappear:">(animated);
  if (isPresentedForPreview()) return;
  showBars(true, animated);
  const auto navigation = bridge::UIViewController(self().get()).navigationController();
  const auto top = send<bridge::UIViewController, "topViewController">(navigation);
  if (top != bridge::UIViewController(self().get()))
    send<void, "setToolbarHidden:animated:">(navigation, true, animated);
}

bridge::PUAssetReference PUOneUpViewController::assetReference(bridge::NSIndexPath path,
                                                               bridge::PUOneUpTilingLayout) const {
  const library::ItemPointer item = _items.at(path);
  if (!item || !host().library) return {};
  return faces::PUAssetReference::make(faces::PHAsset::make(*host().library, item), path);
}

void PUOneUpViewController::handleTap(bridge::UIGestureRecognizer) {
  showBars(!_areBarsShown, true);
}

void PUOneUpViewController::handleTapBeside(bridge::UIGestureRecognizer) {
  leave();
}

bool PUOneUpViewController::shouldReceiveTouch(bridge::UIGestureRecognizer,
                                               bridge::UITouch touch) const {
  return !bridge::contains(cardFrame(), touch.locationIn(me()));
}

// Without bars a photo stands on black, as in the dark.
void PUOneUpViewController::showBars(bool shown, bool animated) {
  if (shown == _areBarsShown) return;
  _areBarsShown = shown;
  showStatusBar(shown);
  const bridge::UIViewController controller(self().get());
  const auto navigation = controller.navigationController();
  send<void, "setNavigationBarHidden:animated:">(navigation, !shown, animated);
  send<void, "setToolbarHidden:animated:">(navigation, !shown, animated);
  const bridge::UIView view = me();
  bridge::UIView::animate(animated ? barsTime : 0, bridge::Block<void()>([view, shown] {
                            view.setBackgroundColor(shown ? bridge::UIColor::whiteColor()
                                                          : bridge::UIColor::blackColor());
                          }));
  PUOneUpBarsController::of(_bars.get()).update();
}

void PUOneUpViewController::showStatusBar(bool shown) {
  bool& isShown = uikit::application().statusBar.isShown;
  if (shown)
    isShown = _hasStatusBar;
  else
    _hasStatusBar = std::exchange(isShown, false);
}

// What is shown stays on show where its file is still there; otherwise what comes next is.
void PUOneUpViewController::libraryChanged(const library::LibraryChange&) {
  if (!host().library || !_tilingView) return;
  const auto items =
      _items.listAfterChange([](const std::string& uuid) { return host().library->itemOf(uuid); });
  if (!items) return;
  const auto place = items->placeAfterChange(*_items.list(), _items.index());
  showItems(items, place.value_or(0));
  PUOneUpBarsController::of(_bars.get()).update();
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

}  // namespace desktop::photos_ui
