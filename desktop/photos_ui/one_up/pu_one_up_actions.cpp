// SPDX-License-Identifier: MIT
//
// What keys do to a single photo: turning pages, looking closer, playing.
#include "desktop/photos_ui/one_up/pu_one_up_photo_view.h"
#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"

namespace desktop::photos_ui {
namespace {

constexpr CGFloat zoomStep = 1.5;

}  // namespace

bool PUOneUpViewController::page(std::size_t index) {
  const std::size_t from = pages().goal();
  if (index >= _items.list()->size() || index == from) return false;
  pages().show(index, index + 1 == from || index == from + 1);
  return true;
}

bool PUOneUpViewController::zoom(OneUpAction action) {
  const bridge::UIView shown = pages().currentPage();
  if (!shown) return false;
  PUOneUpPhotoView& photo = PUOneUpPhotoView::of(shown);
  const CGSize size = uikit::UIView::of(shown).bounds().size;
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

bool PUOneUpViewController::perform(OneUpAction action) {
  if (!_tilingView || _items.list()->isEmpty()) return false;
  switch (action) {
    case OneUpAction::next:
      return page(pages().goal() + 1);
    case OneUpAction::previous:
      return pages().goal() > 0 && page(pages().goal() - 1);
    case OneUpAction::first:
      return page(0);
    case OneUpAction::last:
      return page(_items.list()->size() - 1);
    case OneUpAction::play: {
      const bool isVideo = currentItem() && currentItem()->isVideo();
      if (isVideo) bridge::send<void, "playTouched:">(pages().currentPage(), bridge::NSObject());
      return isVideo;
    }
    default:
      return zoom(action);
  }
}

bool performOneUpAction(bridge::UIViewController controller, OneUpAction action) {
  return bridge::isKindOf(controller, PUOneUpViewController::classObject()) &&
         PUOneUpViewController::of(controller).perform(action);
}

}  // namespace desktop::photos_ui
