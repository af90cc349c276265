// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/albums/album_cell.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/labels.h"
#include "desktop/platform.h"
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
    count.insert(count.size() - digits, 1, ',');
  return count;
}

}  // namespace

Class AlbumCell::classObject() {
  static const Class made =
      ClassBuilder<AlbumCell>("AlbumCell")
          .method<"initWithStyle:reuseIdentifier:", &AlbumCell::initWithStyle>()
          .method<"layoutSubviews", &AlbumCell::layoutSubviews>()
          .build();
  return made;
}

UITableViewCell AlbumCell::initWithStyle(NSInteger style, NSString identifier) {
  const auto object = super<UITableViewCell, "initWithStyle:reuseIdentifier:">(style, identifier);
  if (!object) return {};
  const UIView content = contentView();
  _photo = makeWith<UIView, "initWithFrame:">(
      PUPhotoViewState::classObject(),
      CGRect{{margin, (height - photoSide) / 2}, {photoSide, photoSide}});
  _title = photos_ui::makeLabel({.size = 17}, uikit::colors::black);
  _count = photos_ui::makeLabel({.size = 13}, uikit::colors::secondaryText);
  content.addSubview(_photo);
  content.addSubview(_title);
  content.addSubview(_count);
  self().setAccessoryType(UITableViewCell::disclosureIndicator);
  return object;
}

// The newest photo stands for all.
void AlbumCell::show(const library::Album& album) {
  auto& photo = PUPhotoViewState::of(_photo.get()).content();
  photo.setWord(album.kind == library::AlbumKind::sharedFolder ? "Shared" : "");
  photo.show(album.items.empty() ? nullptr : album.items.back(), {photoSide, photoSide});
  showText(_title, album.title);
  showText(_count, countOf(album));
}

void AlbumCell::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize room = contentView().bounds().size;
  const CGFloat left = margin + photoSide + margin;
  const CGFloat width = std::max(0.0, room.width - left - margin);
  const CGFloat top = (room.height - titleHeight - countHeight) / 2;
  _photo->setFrame({{margin, (room.height - photoSide) / 2}, {photoSide, photoSide}});
  _title->setFrame({{left, top}, {width, titleHeight}});
  _count->setFrame({{left, top + titleHeight}, {width, countHeight}});
}

}  // namespace desktop::photos_ui
