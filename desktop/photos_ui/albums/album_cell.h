// SPDX-License-Identifier: MIT
//
// A row of the list of albums: a key photo, the title, how many items there are.
#pragma once

#include "bridge/bound.h"
#include "desktop/library/albums.h"
#include "desktop/photos_ui/cells/pu_photo_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"

namespace desktop::photos_ui {

class AlbumCell : public Bound<AlbumCell, uikit::UITableViewCellState> {
 public:
  using Bound::Bound;
  static Class classObject();
  static constexpr CGFloat height = 92;  // points

  void show(const library::Album& album);

 private:
  UITableViewCell initWithStyle(NSInteger style, NSString identifier);
  void layoutSubviews();

  Owned<UIView> _photo;
  Owned<UILabel> _title;
  Owned<UILabel> _count;
};

}  // namespace desktop::photos_ui
