// SPDX-License-Identifier: MIT
#include "lumifact/grid/caption_bar.h"

#include "lumifact/grid/text_banner.h"
#include "lumifact/state/current_settings.h"

namespace lumifact {

constinit AssociatedProperty<UIView> sizeLabelView;
constinit AssociatedProperty<UILabel> sizeLabel;

namespace {

constexpr NSInteger barTag = 100;
constexpr NSInteger labelTag = 200;
constexpr CGFloat heightAtFirst = 20.0;
constexpr CGFloat margin = 2.0;          // on either side of text and shadow
constexpr CGFloat labelTopInBar = -1.0;  // its descenders need the room
constexpr CGFloat captionFontSize = 12.0;
constexpr CGSize barShadowOffset = {0.0, -2.0};
constexpr float barShadowOpacity = 0.5F;

void shapeShadow(UIView bar) {
  const CGSize size = bar.bounds().size;
  const CGRect shadow = {{margin, 0.0}, {size.width - 2 * margin, size.height}};
  bar.layer().setShadowPath(UIBezierPath::withRect(shadow).cgPath());
}

// A Core Graphics colour is an object as it stands, and may lie in an array.
Object blackAt(CGFloat alpha) {
  return Object(reinterpret_cast<id>(UIColor::white(0.0, alpha).cgColor()));
}

void addGradient(UIView bar) {
  const CAGradientLayer gradient = CAGradientLayer::layer();
  gradient.setFrame(bar.bounds());
  gradient.setColors(NSArray::of(blackAt(0.0), blackAt(1.0)));
  bar.layer().insertSublayer(gradient, 0);
}

// Fades out upwards, over a shadow.
void makeFading(UIView bar) {
  bar.setBackgroundColor(UIColor::white(0.0, 0.0));
  const CALayer layer = bar.layer();
  layer.setMasksToBounds(false);
  layer.setShadowColor(UIColor::blackColor().cgColor());
  layer.setShadowOffset(barShadowOffset);
  layer.setShadowOpacity(barShadowOpacity);
  shapeShadow(bar);
  addGradient(bar);
}

Owned<UIView> makeBar(CGFloat width) {
  auto bar = makeView<UIView>({{0.0, 0.0}, {width, heightAtFirst}});
  if (settings.thumbnailInfoDisplaySolid) {
    bar->setBackgroundColor(UIColor::white(0.0, 1.0));
  } else {
    makeFading(bar);
  }
  bar->setTag(barTag);
  return bar;
}

Owned<UILabel> makeLabel(CGFloat width) {
  auto label = makeView<UILabel>({{margin, 0.0}, {width - 2 * margin, heightAtFirst}});
  label->setFont(UIFont::systemFont(captionFontSize));
  label->setAdjustsFontSizeToFitWidth(true);
  label->setBackgroundColor(UIColor::clearColor());
  label->setTextColor(UIColor::whiteColor());
  label->setTextAlignment(alignCenter);
  label->setAutoresizingMask(flexibleWidth);
  label->setTag(labelTag);
  return label;
}

}  // namespace

void addCaption(PUPhotosGridCell cell) {
  if (!cell || settings.thumbnailInfoDisplay == 0) return;
  const CGFloat width = cell.bounds().size.width;
  const auto bar = makeBar(width);
  const auto label = makeLabel(width);
  sizeLabelView.set(cell, bar);
  sizeLabel.set(cell, label);
  bar->addSubview(label);
  cell.contentView().addSubview(bar);
}

void layOutCaption(PUPhotosGridCell cell) {
  const UIView bar = sizeLabelView.get(cell);
  if (!bar) return;
  if (settings.thumbnailInfoDisplay == 0) return bar.setAlpha(0.0);
  const PUPhotoView photo = cell.photoContentView();
  const CGSize room = photo.frame().size;
  sizeLabel.get(cell).setFrame(
      {{margin, labelTopInBar}, {room.width - 2 * margin, infoLineHeight}});
  if (!settings.thumbnailInfoDisplaySolid) shapeShadow(bar);
  const CGFloat top = hasBannerText(photo.contentHelper()) ? 0.0 : room.height - infoLineHeight;
  bar.setFrame({{0.0, top}, {room.width, infoLineHeight}});
  photo.bringSubviewToFront(bar);
}

}  // namespace lumifact
