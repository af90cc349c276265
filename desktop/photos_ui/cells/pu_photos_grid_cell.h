// SPDX-License-Identifier: MIT
//
// PUPhotosGridCell: one item of a grid: its thumbnail, and whether it is selected.
#pragma once

#include "bridge/bound.h"
#include "desktop/photos_ui/cells/pu_photo_view.h"
#include "desktop/uikit/handles.h"

namespace desktop::photos_ui {

class PUPhotosGridCell
    : public bridge::Bound<PUPhotosGridCell, uikit::handles::UICollectionViewCell> {
 public:
  using Bound::Bound;
  static Class classObject();

  bridge::PUPhotoView photoContentView() const { return _photoView; }
  PUPhotoViewContentHelper& content() const { return PUPhotoView::of(_photoView.get()).content(); }
  // The size is the cell's, in points.
  void showItem(library::ItemPointer item, CGSize size);
  // The cell that stands for adding an item.
  void showAddSign();

 private:
  bridge::UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  void prepareForReuse();
  void setSelected(bool selected);
  void setHighlighted(bool highlighted);
  void showCover();

  bridge::Owned<bridge::PUPhotoView> _photoView;
  bridge::Owned<bridge::UIView> _cover;  // over the photo while the cell is selected or touched
  bridge::Owned<bridge::UIView> _addSign;
};

}  // namespace desktop::photos_ui
