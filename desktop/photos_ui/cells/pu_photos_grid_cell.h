// SPDX-License-Identifier: MIT
//
// PUPhotosGridCell: one item of a grid: its thumbnail, and whether it is selected.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/photos_ui/cells/pu_photo_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/ui_collection_view_cell.h"

namespace desktop::photos_ui {

class PUPhotosGridCellState
    : public Bound<PUPhotosGridCellState, uikit::UICollectionViewCellState, PUPhotosGridCell> {
 public:
  using Bound::Bound;
  static Class classObject();

  PUPhotoView photoContentView() const { return _photoView; }
  PUPhotoViewContentHelperState& content() const {
    return PUPhotoViewState::of(_photoView.get()).content();
  }
  // The size is the cell's, in points.
  void showItem(library::ItemPointer item, CGSize size);
  // The cell that stands for adding an item.
  void showAddSign();

 private:
  UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  void prepareForReuse();
  void setSelected(bool selected);
  void setHighlighted(bool highlighted);
  void showCover();

  Owned<PUPhotoView> _photoView;
  Owned<UIView> _cover;  // over the photo while the cell is selected or touched
  Owned<UIView> _addSign;
};

}  // namespace desktop::photos_ui
