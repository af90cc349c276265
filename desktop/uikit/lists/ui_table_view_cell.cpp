// SPDX-License-Identifier: MIT
//
// Labels, picture and accessory are made when they are first asked for. A change only asks for
// layout; where things then lie is said by the cell layout, and accessory and separators are
// painted. Selection and highlight colour the background and the labels in one place.
#include "desktop/uikit/lists/ui_table_view_cell.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/handles.h"
#include "desktop/uikit/text/ui_font.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr CGRect startFrame = {{0, 0}, {320, 44}};
constexpr CGFloat margin = 16;
constexpr CGSize chevron = {8, 13};
constexpr CGSize checkmarkSize = {14, 11};
constexpr CGFloat accessoryGap = 10;   // between content and accessory
constexpr NSUInteger longText = 1000;  // wider than any cell: not worth measuring

CGFloat detailFontSize(NSInteger style) {
  return style == UITableViewCell::subtitle ? 12 : 17;
}

// As much room as a label would like; none for one without text.
CGSize wishOf(bridge::UILabel label) {
  constexpr CGFloat plenty = 100'000;
  const NSUInteger length = label.text().length();
  if (length == 0) return {};
  const FontFace face = UIFont::faceOf(bridge::send<bridge::UIFont, "font">(label));
  const CGFloat height = std::ceil(2 * measuresOf(face).lineHeight()) / 2;
  if (length > longText) return {plenty, height};
  const CGSize wanted = bridge::send<CGSize, "sizeThatFits:">(label, CGSize{plenty, plenty});
  return {wanted.width, height};
}

// A picture higher than its row is shown smaller.
CGSize wishOf(bridge::UIView imageView, CGFloat height) {
  const auto image = bridge::send<bridge::UIImage, "image">(imageView);
  const CGSize size = bridge::send<CGSize, "size">(image);
  if (isEmpty(rectOfSize(size))) return {};
  const CGFloat scale = std::min(1.0, height / size.height);
  return {size.width * scale, size.height * scale};
}

Path chevronIn(CGRect box) {
  const CGFloat x = box.origin.x;
  const CGFloat y = box.origin.y;
  return Path().moveTo({x + 1, y + 1}).lineTo({x + 6.5, y + 6.5}).lineTo({x + 1, y + 12});
}

Path checkmarkIn(CGRect box) {
  const CGFloat x = box.origin.x;
  const CGFloat y = box.origin.y;
  return Path().moveTo({x + 1, y + 6}).lineTo({x + 5, y + 10}).lineTo({x + 13, y + 1});
}

CGRect atRightEdge(CGSize size, CGRect bounds) {
  return {
      {bounds.size.width - margin - size.width, std::round(bounds.size.height - size.height) / 2},
      size};
}

}  // namespace

Class UITableViewCell::classObject() {
  static const Class made =
      bridge::ClassBuilder<UITableViewCell>("UITableViewCell")
          .method<"initWithFrame:", &UITableViewCell::initWithFrame>()
          .method<"initWithStyle:reuseIdentifier:", &UITableViewCell::initWithStyle>()
          .method<"reuseIdentifier", &UITableViewCell::reuseIdentifier>()
          .method<"prepareForReuse", &UITableViewCell::prepareForReuse>()
          .method<"contentView", &UITableViewCell::contentView>()
          .method<"textLabel", &UITableViewCell::textLabel>()
          .method<"detailTextLabel", &UITableViewCell::detailTextLabel>()
          .method<"imageView", &UITableViewCell::imageView>()
          .method<"accessoryType", &UITableViewCell::accessoryType>()
          .method<"setAccessoryType:", &UITableViewCell::setAccessoryType>()
          .method<"accessoryView", &UITableViewCell::accessoryView>()
          .method<"setAccessoryView:", &UITableViewCell::setAccessoryView>()
          .method<"selectionStyle", &UITableViewCell::selectionStyle>()
          .method<"setSelectionStyle:", &UITableViewCell::setSelectionStyle>()
          .method<"isSelected", &UITableViewCell::isSelected>()
          .method<"setSelected:", &UITableViewCell::setSelectedAtOnce>()
          .method<"setSelected:animated:", &UITableViewCell::setSelected>()
          .method<"isHighlighted", &UITableViewCell::isHighlighted>()
          .method<"setHighlighted:", &UITableViewCell::setHighlightedAtOnce>()
          .method<"setHighlighted:animated:", &UITableViewCell::setHighlighted>()
          .method<"layoutSubviews", &UITableViewCell::layoutSubviews>()
          .method<"drawContentOn:", &UITableViewCell::drawContent>()
          .build();
  return made;
}

bridge::Owned<bridge::UITableViewCell> UITableViewCell::make(Class aClass,
                                                             bridge::NSString identifier) {
  const auto made = bridge::Owned<bridge::Object>::adopt(
      bridge::send<bridge::Object, "initWithStyle:reuseIdentifier:">(
          bridge::send<id, "alloc">(aClass), NSInteger{plain}, identifier));
  return bridge::Owned<bridge::UITableViewCell>::retain(
      bridge::as<bridge::UITableViewCell>(made.get()));
}

bridge::UIView UITableViewCell::initWithFrame(CGRect frame) {
  if (!super<bridge::UIView, "initWithFrame:">(frame)) return {};
  self().setBackgroundColor(UIColor::make(colors::white));
  _contentView = bridge::makeView<bridge::UIView>(rectOfSize(frame.size));
  self().addSubview(_contentView);
  return self();
}

bridge::UITableViewCell UITableViewCell::initWithStyle(NSInteger style,
                                                       bridge::NSString reuseIdentifier) {
  const auto made = bridge::send<bridge::UITableViewCell, "initWithFrame:">(self(), startFrame);
  if (!made) return {};
  _style = style;
  _reuseIdentifier = bridge::Owned<bridge::NSString>::retain(reuseIdentifier);
  return made;
}

bridge::Owned<bridge::UILabel> UITableViewCell::makeLabel(CGFloat fontSize, Color color) const {
  auto label = bridge::makeView<bridge::UILabel>({});
  label->setFont(bridge::UIFont::systemFont(fontSize));
  label->setTextColor(UIColor::make(color));
  _contentView->addSubview(label);
  return label;
}

// Who asks for a label may be about to change it, so it is laid out again.
bridge::UILabel UITableViewCell::textLabel() {
  if (!_textLabel) _textLabel = makeLabel(17, _style == value2 ? colors::tint : colors::black);
  UIView::of(self()).setNeedsLayout();
  return _textLabel;
}

bridge::UILabel UITableViewCell::detailTextLabel() {
  if (_style == plain) return {};
  const Color color = _style == value1 ? colors::secondaryText : colors::black;
  if (!_detailTextLabel) _detailTextLabel = makeLabel(detailFontSize(_style), color);
  UIView::of(self()).setNeedsLayout();
  return _detailTextLabel;
}

bridge::UIView UITableViewCell::imageView() {
  if (!_imageView) {
    _imageView = bridge::makeView<handles::UIImageView>({});
    _contentView->addSubview(_imageView);
  }
  UIView::of(self()).setNeedsLayout();
  return _imageView;
}

void UITableViewCell::setAccessoryType(NSInteger type) {
  if (type == _accessoryType) return;
  _accessoryType = type;
  UIView::of(self()).setNeedsLayout();
  UIView::of(self()).setNeedsDisplay();
}

void UITableViewCell::setAccessoryView(bridge::UIView view) {
  if (view == _accessoryView.get()) return;
  _accessoryView->removeFromSuperview();
  _accessoryView = bridge::Owned<bridge::UIView>::retain(view);
  self().addSubview(view);
  UIView::of(self()).setNeedsLayout();
  UIView::of(self()).setNeedsDisplay();
}

void UITableViewCell::setSelectionStyle(NSInteger style) {
  if (style == _selectionStyle) return;
  _selectionStyle = style;
  UIView::of(self()).setNeedsDisplay();
}

void UITableViewCell::setSeparators(const RowSeparators& separators) {
  if (separators == _separators) return;
  _separators = separators;
  UIView::of(self()).setNeedsDisplay();
}

void UITableViewCell::setSelectedAtOnce(bool selected) {
  bridge::send<void, "setSelected:animated:">(self(), selected, false);
}

void UITableViewCell::setSelected(bool selected, bool) {
  if (selected == _isSelected) return;
  _isSelected = selected;
  UIView::of(self()).setNeedsDisplay();
}

void UITableViewCell::setHighlightedAtOnce(bool highlighted) {
  bridge::send<void, "setHighlighted:animated:">(self(), highlighted, false);
}

void UITableViewCell::setHighlighted(bool highlighted, bool) {
  if (highlighted == _isHighlighted) return;
  _isHighlighted = highlighted;
  UIView::of(self()).setNeedsDisplay();
}

void UITableViewCell::prepareForReuse() {
  bridge::send<void, "setSelected:animated:">(self(), false, false);
  bridge::send<void, "setHighlighted:animated:">(self(), false, false);
}

// The room that an accessory takes from the content, with the gap before it.
CGFloat UITableViewCell::accessoryRoom() const {
  if (_accessoryView) return margin + _accessoryView->bounds().size.width + accessoryGap;
  switch (_accessoryType) {
    case disclosureIndicator:
    case detailDisclosureButton:
      return margin + chevron.width + accessoryGap;
    case checkmark:
      return margin + checkmarkSize.width + accessoryGap;
    default:
      return 0;
  }
}

void UITableViewCell::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGRect bounds = UIView::of(self()).bounds();
  const CGFloat hairline = _separators.below ? 1 / screen().scale : 0;
  const CGSize content = {std::max(bounds.size.width - accessoryRoom(), 0.0),
                          std::max(bounds.size.height - hairline, 0.0)};
  _contentView->setFrame(rectOfSize(content));
  if (_accessoryView) _accessoryView->setFrame(atRightEdge(_accessoryView->bounds().size, bounds));
  const CellFrames frames = layOutCell({.style = _style,
                                        .content = content,
                                        .rightMargin = accessoryRoom() > 0 ? 0 : margin,
                                        .image = wishOf(_imageView, content.height),
                                        .text = wishOf(_textLabel),
                                        .detail = wishOf(_detailTextLabel)});
  _imageView->setFrame(frames.image);
  _textLabel->setFrame(frames.text);
  _detailTextLabel->setFrame(frames.detail);
}

void UITableViewCell::drawContent(Canvas* canvas) const {
  const CGRect bounds = UIView::of(self()).bounds();
  if (looksSelected()) canvas->fill(bounds, colors::highlight, 0);
  drawSeparators(*canvas, bounds);
  if (_accessoryView) return;
  if (_accessoryType == checkmark) {
    canvas->stroke(checkmarkIn(atRightEdge(checkmarkSize, bounds)), 2, UIView::of(self()).tint());
  } else if (accessoryRoom() > 0) {
    canvas->stroke(chevronIn(atRightEdge(chevron, bounds)), 2, colors::disclosure);
  }
}

void UITableViewCell::drawSeparators(Canvas& canvas, CGRect bounds) const {
  const CGFloat width = bounds.size.width;
  const CGFloat hairline = 1 / screen().scale;
  const CGFloat left = _separators.insetBelow > 0 ? _separators.insetBelow + imageRoom() : 0;
  if (_separators.above) canvas.fill({{0, 0}, {width, hairline}}, _separators.color, 0);
  if (_separators.below && width > left)
    canvas.fill({{left, bounds.size.height - hairline}, {width - left, hairline}},
                _separators.color, 0);
}

// How far a picture moves texts to the right, and the hairline with them.
CGFloat UITableViewCell::imageRoom() const {
  const CGSize content = _contentView->bounds().size;
  return cellTextInset(wishOf(_imageView, content.height)) - cellTextInset({});
}

}  // namespace desktop::uikit
