// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/photo_pages.h"

#include "desktop/photos_ui/one_up/pu_one_up_photo_view.h"

namespace desktop::photos_ui {

namespace {

constexpr CGFloat zoomStep = 1.5;

}  // namespace

PhotoPages::~PhotoPages() {
  if (_view) tiling().pageChanged = nullptr;
}

Owned<UIScrollView> PhotoPages::makeView(CGRect frame) {
  auto made = bridge::makeView<UIScrollView>(frame, PUTilingView::classObject());
  made->setPagingEnabled(true);
  made->setShowsHorizontalScrollIndicator(false);
  made->setContentInsetAdjustmentBehavior(UIScrollView::adjustsNever);
  return made;
}

void PhotoPages::setView(UIView view) {
  _view = Owned<UIView>::retain(view);
}

void PhotoPages::onChange(std::function<void(std::size_t index)> changed) {
  tiling().pageChanged = std::move(changed);
  tiling().pageHidden = [](UIView page) { PUOneUpPhotoView::of(page).zoomTo(1, {}, false); };
}

void PhotoPages::show(const BrowsedItems& items) {
  const auto makePage = [list = items.list()](std::size_t page) {
    return PUOneUpPhotoView::make(list->at(page));
  };
  const UIView shown = tiling().currentPage();
  if (shown && PUOneUpPhotoView::of(shown).item() == items.current())
    tiling().replaceOtherPages(items.list()->size(), items.index(), makePage);
  else
    tiling().setPages(items.list()->size(), items.index(), makePage);
}

bool PhotoPages::turnTo(std::size_t index) {
  const std::size_t from = tiling().goal();
  if (index >= tiling().count() || index == from) return false;
  tiling().show(index, index + 1 == from || index == from + 1);
  return true;
}

bool PhotoPages::zoom(OneUpAction action) {
  const UIView shown = tiling().currentPage();
  if (!shown) return false;
  PUOneUpPhotoView& photo = PUOneUpPhotoView::of(shown);
  const CGSize size = uikit::UIViewState::of(shown).bounds().size;
  const CGPoint mid = {size.width / 2, size.height / 2};
  switch (action) {
    case OneUpAction::zoomIn:
      photo.zoomTo(photo.zoom() * zoomStep, mid, true);
      break;
    case OneUpAction::zoomOut:
      photo.zoomTo(photo.zoom() / zoomStep, mid, true);
      break;
    case OneUpAction::fit:
      photo.zoomTo(1, mid, true);
      break;
    default:
      photo.zoomTo(photo.actualSizeZoom(), mid, true);
      break;
  }
  return true;
}

bool PhotoPages::play() {
  const UIView shown = tiling().currentPage();
  if (!shown || !PUOneUpPhotoView::of(shown).item()->isVideo()) return false;
  PUOneUpPhotoView::of(shown).play();
  return true;
}

bool PhotoPages::perform(OneUpAction action) {
  if (!_view || tiling().count() == 0) return false;
  switch (action) {
    case OneUpAction::next:
      return turnTo(tiling().goal() + 1);
    case OneUpAction::previous:
      return tiling().goal() > 0 && turnTo(tiling().goal() - 1);
    case OneUpAction::first:
      return turnTo(0);
    case OneUpAction::last:
      return turnTo(tiling().count() - 1);
    case OneUpAction::play:
      return play();
    default:
      return zoom(action);
  }
}

}  // namespace desktop::photos_ui
