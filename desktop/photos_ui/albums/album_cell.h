// SPDX-License-Identifier: MIT
//
// A row of the list of albums: a key photo, the title, how many items there are.
#pragma once

#include "bridge/bound.h"
#include "desktop/library/albums.h"
#include "desktop/photos_ui/cells/pu_photo_view.h"

namespace desktop::photos_ui {

class AlbumCell : public bridge::Bound<AlbumCell, bridge::UITableViewCell> {
 public:
  using Bound::Bound;
  static Class classObject();
  static constexpr CGFloat height = 92;  // points

  void show(const library::Album& album);

 private:
  bridge::UITableViewCell initWithStyle(NSInteger style, bridge::NSString identifier);
  void layoutSubviews();

  bridge::Owned<bridge::UIView> _photo;
  bridge::Owned<bridge::UILabel> _title;
  bridge::Owned<bridge::UILabel> _count;
};

}  // namespace desktop::photos_ui
