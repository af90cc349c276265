// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/cells/pu_photos_grid_cell.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/cells/cell_marks.h"
#include "desktop/uikit/lists/ui_collection_view_cell.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {

Class PUPhotosGridCell::classObject() {
  static const Class made = bridge::ClassBuilder<PUPhotosGridCell>("PUPhotosGridCell")
                                .method<"initWithFrame:", &PUPhotosGridCell::initWithFrame>()
                                .method<"photoContentView", &PUPhotosGridCell::photoContentView>()
                                .method<"layoutSubviews", &PUPhotosGridCell::layoutSubviews>()
                                .method<"prepareForReuse", &PUPhotosGridCell::prepareForReuse>()
                                .method<"setSelected:", &PUPhotosGridCell::setSelected>()
                                .method<"setHighlighted:", &PUPhotosGridCell::setHighlighted>()
                                .build();
  return made;
}

bridge::UIView PUPhotosGridCell::initWithFrame(CGRect frame) {
  if (!super<bridge::UIView, "initWithFrame:">(frame)) return {};
  const bridge::UIView content = self().contentView();
  _photoView =
      bridge::Owned<bridge::PUPhotoView>::adopt(bridge::send<bridge::PUPhotoView, "initWithFrame:">(
          bridge::send<id, "alloc">(PUPhotoView::classObject()), content.bounds()));
  content.addSubview(_photoView);
  return self();
}

void PUPhotosGridCell::showItem(library::ItemPointer item, CGSize size) {
  _addSign->removeFromSuperview();
  _addSign.reset();
  content().show(std::move(item), size);
}

void PUPhotosGridCell::showAddSign() {
  content().show(nullptr, {});
  if (_addSign) return;
  _addSign = CellMark::make(CellMark::Kind::add);
  self().contentView().addSubview(_addSign);
  uikit::UIView::of(self()).setNeedsLayout();
}

void PUPhotosGridCell::showCover() {
  const auto& state = uikit::UICollectionViewCell::of(self());
  if (!state.isSelected() && !state.isHighlighted()) {
    _cover->removeFromSuperview();
    return _cover.reset();
  }
  const auto kind = state.isSelected() ? CellMark::Kind::selected : CellMark::Kind::pressed;
  if (_cover) return CellMark::of(_cover.get()).setKind(kind);
  _cover = CellMark::make(kind);
  self().addSubview(_cover);
  uikit::UIView::of(self()).setNeedsLayout();
}

void PUPhotosGridCell::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGRect room = self().contentView().bounds();
  _photoView->setFrame(room);
  _cover->setFrame(room);
  _addSign->setFrame(room);
}

void PUPhotosGridCell::prepareForReuse() {
  super<void, "prepareForReuse">();
  showItem(nullptr, {});
}

void PUPhotosGridCell::setSelected(bool selected) {
  super<void, "setSelected:">(selected);
  showCover();
}

void PUPhotosGridCell::setHighlighted(bool highlighted) {
  super<void, "setHighlighted:">(highlighted);
  showCover();
}

}  // namespace desktop::photos_ui
