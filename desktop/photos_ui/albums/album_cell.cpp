// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/albums/album_cell.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/labels.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"

namespace desktop::photos_ui {
namespace {

constexpr CGFloat margin = 16;     // points
constexpr CGFloat photoSide = 76;  // points
constexpr CGFloat titleHeight = 22;
constexpr CGFloat countHeight = 17;

std::string countOf(const library::Album& album) {
  std::string count = std::to_string(album.items.size());
  for (std::size_t digits = 3; digits < count.size(); digits += 4)
    count.insert(count.size() - digits, ",");
  return count;
}

}  // namespace

Class AlbumCell::classObject() {
  static const Class made =
      bridge::ClassBuilder<AlbumCell>("AlbumCell")
          .method<"initWithStyle:reuseIdentifier:", &AlbumCell::initWithStyle>()
          .method<"layoutSubviews", &AlbumCell::layoutSubviews>()
          .build();
  return made;
}

bridge::UITableViewCell AlbumCell::initWithStyle(NSInteger style, bridge::NSString identifier) {
  const auto object =
      super<bridge::UITableViewCell, "initWithStyle:reuseIdentifier:">(style, identifier);
  if (!object) return {};
  const bridge::UIView content = uikit::UITableViewCell::of(self()).contentView();
  _photo = bridge::Owned<bridge::UIView>::adopt(bridge::send<bridge::UIView, "initWithFrame:">(
      bridge::send<id, "alloc">(PUPhotoView::classObject()),
      CGRect{{margin, (height - photoSide) / 2}, {photoSide, photoSide}}));
  _title = makeLabel({.size = 17}, uikit::colors::black);
  _count = makeLabel({.size = 13}, uikit::colors::secondaryText);
  content.addSubview(_photo);
  content.addSubview(_title);
  content.addSubview(_count);
  self().setAccessoryType(bridge::UITableViewCell::disclosureIndicator);
  return object;
}

// The newest photo stands for all.
void AlbumCell::show(const library::Album& album) {
  PUPhotoView::of(_photo.get())
      .content()
      .show(album.items.empty() ? nullptr : album.items.back(), {photoSide, photoSide});
  showText(_title, album.title);
  showText(_count, countOf(album));
}

void AlbumCell::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize room = uikit::UITableViewCell::of(self()).contentView().bounds().size;
  const CGFloat left = margin + photoSide + margin;
  const CGFloat width = std::max(0.0, room.width - left - margin);
  const CGFloat top = (room.height - titleHeight - countHeight) / 2;
  _photo->setFrame({{margin, (room.height - photoSide) / 2}, {photoSide, photoSide}});
  _title->setFrame({{left, top}, {width, titleHeight}});
  _count->setFrame({{left, top + titleHeight}, {width, countHeight}});
}

}  // namespace desktop::photos_ui
