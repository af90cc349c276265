// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/grid_titles.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/labels.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {
namespace {

constexpr CGFloat margin = 16;  // points, at the sides
constexpr CGFloat titleHeight = 21;
constexpr CGFloat detailHeight = 16;
constexpr CGFloat belowTitles = 5;  // points

}  // namespace

Class GridHeader::classObject() {
  static const Class made = ClassBuilder<GridHeader>("GridHeader")
                                .method<"initWithFrame:", &GridHeader::initWithFrame>()
                                .method<"layoutSubviews", &GridHeader::layoutSubviews>()
                                .build();
  return made;
}

UIView GridHeader::initWithFrame(CGRect frame) {
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  self().setBackgroundColor(uikit::UIColorState::make(uikit::colors::white));
  _title = makeLabel({.weight = uikit::FontWeight::semibold, .size = 17}, uikit::colors::black);
  _detail = makeLabel({.size = 12}, uikit::colors::secondaryText);
  self().addSubview(_title);
  self().addSubview(_detail);
  return self();
}

void GridHeader::show(std::string_view title, std::string_view detail) {
  showText(_title, title);
  showText(_detail, detail);
  setNeedsLayout();
}

void GridHeader::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize room = self().bounds().size;
  const CGFloat width = std::max(0.0, room.width - 2 * margin);
  const bool hasDetail = _detail->text().length() > 0;
  const CGFloat detailTop = room.height - belowTitles - (hasDetail ? detailHeight : 0);
  _detail->setFrame({{margin, detailTop}, {width, detailHeight}});
  _title->setFrame({{margin, detailTop - titleHeight}, {width, titleHeight}});
}

Class GridFooter::classObject() {
  static const Class made = ClassBuilder<GridFooter>("GridFooter")
                                .method<"initWithFrame:", &GridFooter::initWithFrame>()
                                .build();
  return made;
}

UIView GridFooter::initWithFrame(CGRect frame) {
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  _label = makeLabel({.weight = uikit::FontWeight::semibold, .size = 17}, uikit::colors::black);
  _label->setTextAlignment(alignCenter);
  _label->setFrame(self().bounds());
  _label->setAutoresizingMask(flexibleWidth | flexibleHeight);
  self().addSubview(_label);
  return self();
}

void GridFooter::show(std::string_view text) {
  showText(_label, text);
}

}  // namespace desktop::photos_ui
