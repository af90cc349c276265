// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/cells/pu_photos_grid_cell.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/cells/cell_marks.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/ui_collection_view_cell.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {

Class PUPhotosGridCellState::classObject() {
  static const Class made =
      ClassBuilder<PUPhotosGridCellState>("PUPhotosGridCell")
          .method<"initWithFrame:", &PUPhotosGridCellState::initWithFrame>()
          .method<"photoContentView", &PUPhotosGridCellState::photoContentView>()
          .method<"layoutSubviews", &PUPhotosGridCellState::layoutSubviews>()
          .method<"prepareForReuse", &PUPhotosGridCellState::prepareForReuse>()
          .method<"setSelected:", &PUPhotosGridCellState::setSelected>()
          .method<"setHighlighted:", &PUPhotosGridCellState::setHighlighted>()
          .build();
  return made;
}

UIView PUPhotosGridCellState::initWithFrame(CGRect frame) {
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  const UIView content = self().contentView();
  _photoView =
      makeWith<PUPhotoView, "initWithFrame:">(PUPhotoViewState::classObject(), content.bounds());
  content.addSubview(_photoView);
  return self();
}

void PUPhotosGridCellState::showItem(library::ItemPointer item, CGSize size) {
  _addSign->removeFromSuperview();
  _addSign.reset();
  content().show(std::move(item), size);
}

void PUPhotosGridCellState::showAddSign() {
  content().show(nullptr, {});
  if (_addSign) return;
  _addSign = CellMark::make(CellMark::Kind::add);
  self().contentView().addSubview(_addSign);
  setNeedsLayout();
}

void PUPhotosGridCellState::showCover() {
  const auto& state = *this;
  if (!state.isSelected() && !state.isHighlighted()) {
    _cover->removeFromSuperview();
    return _cover.reset();
  }
  const auto kind = state.isSelected() ? CellMark::Kind::selected : CellMark::Kind::pressed;
  if (_cover) return CellMark::of(_cover.get()).setKind(kind);
  _cover = CellMark::make(kind);
  self().addSubview(_cover);
  setNeedsLayout();
}

// What others put on a cell may follow its size by itself and by their own layout, one after the
// other: a cell of another size is laid out twice, so that the second pass finds all in place.
void PUPhotosGridCellState::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGRect room = self().contentView().bounds();
  if (_photoView->frame().size != room.size) {
    content().fit(room.size);
    setNeedsLayout();
  }
  _photoView->setFrame(room);
  _cover->setFrame(room);
  _addSign->setFrame(room);
}

void PUPhotosGridCellState::prepareForReuse() {
  super<void, "prepareForReuse">();
  showItem(nullptr, {});
}

void PUPhotosGridCellState::setSelected(bool selected) {
  super<void, "setSelected:">(selected);
  showCover();
}

void PUPhotosGridCellState::setHighlighted(bool highlighted) {
  super<void, "setHighlighted:">(highlighted);
  showCover();
}

}  // namespace desktop::photos_ui
