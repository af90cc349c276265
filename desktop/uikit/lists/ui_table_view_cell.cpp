// SPDX-License-Identifier: MIT
//
// Labels, picture and accessory are made when they are first asked for. A change only asks for
// layout; where things then lie is said by the cell layout, and accessory and separators are
// painted. Selection and highlight colour the background and the labels in one place.
#include "desktop/uikit/lists/ui_table_view_cell.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
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
  return style == UITableViewCellState::subtitle ? 12 : 17;
}

// As much room as a label would like; none for one without text.
CGSize wishOf(UILabel label) {
  constexpr CGFloat plenty = 100'000;
  const NSUInteger length = label.text().length();
  if (length == 0) return {};
  const FontFace face = UIFontState::faceOf(UILabel(label.get()).font());
  const CGFloat height = std::ceil(2 * measuresOf(face).lineHeight()) / 2;
  if (length > longText) return {plenty, height};
  const CGSize wanted = label.sizeThatFits(CGSize{plenty, plenty});
  return {wanted.width, height};
}

// A picture higher than its row is shown smaller.
CGSize wishOf(UIImageView imageView, CGFloat height) {
  const CGSize size = imageView.image().size();
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

Class UITableViewCellState::classObject() {
  static const Class made =
      ClassBuilder<UITableViewCellState>("UITableViewCell")
          .method<"initWithFrame:", &UITableViewCellState::initWithFrame>()
          .method<"initWithStyle:reuseIdentifier:", &UITableViewCellState::initWithStyle>()
          .method<"reuseIdentifier", &UITableViewCellState::reuseIdentifier>()
          .method<"prepareForReuse", &UITableViewCellState::prepareForReuse>()
          .method<"contentView", &UITableViewCellState::contentView>()
          .method<"textLabel", &UITableViewCellState::textLabel>()
          .method<"detailTextLabel", &UITableViewCellState::detailTextLabel>()
          .method<"imageView", &UITableViewCellState::imageView>()
          .method<"accessoryType", &UITableViewCellState::accessoryType>()
          .method<"setAccessoryType:", &UITableViewCellState::setAccessoryType>()
          .method<"accessoryView", &UITableViewCellState::accessoryView>()
          .method<"setAccessoryView:", &UITableViewCellState::setAccessoryView>()
          .method<"selectionStyle", &UITableViewCellState::selectionStyle>()
          .method<"setSelectionStyle:", &UITableViewCellState::setSelectionStyle>()
          .method<"isSelected", &UITableViewCellState::isSelected>()
          .method<"setSelected:", &UITableViewCellState::setSelectedAtOnce>()
          .method<"setSelected:animated:", &UITableViewCellState::setSelected>()
          .method<"isHighlighted", &UITableViewCellState::isHighlighted>()
          .method<"setHighlighted:", &UITableViewCellState::setHighlightedAtOnce>()
          .method<"setHighlighted:animated:", &UITableViewCellState::setHighlighted>()
          .method<"layoutSubviews", &UITableViewCellState::layoutSubviews>()
          .method<"drawContentOn:", &UITableViewCellState::drawContent>()
          .build();
  return made;
}

Owned<UITableViewCell> UITableViewCellState::make(Class aClass, NSString identifier) {
  const auto made =
      makeWith<Object, "initWithStyle:reuseIdentifier:">(aClass, NSInteger{plain}, identifier);
  return Owned<UITableViewCell>::retain(as<UITableViewCell>(made.get()));
}

UIView UITableViewCellState::initWithFrame(CGRect frame) {
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  self().setBackgroundColor(UIColorState::make(colors::white));
  _contentView = bridge::makeView<UIView>(rectOfSize(frame.size));
  self().addSubview(_contentView);
  return self();
}

UITableViewCell UITableViewCellState::initWithStyle(NSInteger style, NSString reuseIdentifier) {
  const auto made = initWith<"initWithFrame:">(self(), startFrame);
  if (!made) return {};
  _style = style;
  _reuseIdentifier = Owned<NSString>::retain(reuseIdentifier);
  return made;
}

Owned<UILabel> UITableViewCellState::makeLabel(CGFloat fontSize, Color color) const {
  auto label = bridge::makeView<UILabel>({});
  label->setFont(UIFont::systemFont(fontSize));
  label->setTextColor(UIColorState::make(color));
  _contentView->addSubview(label);
  return label;
}

// Who asks for a label may be about to change it, so it is laid out again.
UILabel UITableViewCellState::textLabel() {
  if (!_textLabel) _textLabel = makeLabel(17, _style == value2 ? colors::tint : colors::black);
  setNeedsLayout();
  return _textLabel;
}

UILabel UITableViewCellState::detailTextLabel() {
  if (_style == plain) return {};
  const Color color = _style == value1 ? colors::secondaryText : colors::black;
  if (!_detailTextLabel) _detailTextLabel = makeLabel(detailFontSize(_style), color);
  setNeedsLayout();
  return _detailTextLabel;
}

UIView UITableViewCellState::imageView() {
  if (!_imageView) {
    _imageView = bridge::makeView<UIImageView>({});
    _contentView->addSubview(_imageView);
  }
  setNeedsLayout();
  return _imageView;
}

void UITableViewCellState::setAccessoryType(NSInteger type) {
  if (type == _accessoryType) return;
  _accessoryType = type;
  setNeedsLayout();
  setNeedsDisplay();
}

void UITableViewCellState::setAccessoryView(UIView view) {
  if (view == _accessoryView.get()) return;
  _accessoryView->removeFromSuperview();
  _accessoryView = Owned<UIView>::retain(view);
  self().addSubview(view);
  setNeedsLayout();
  setNeedsDisplay();
}

void UITableViewCellState::setSelectionStyle(NSInteger style) {
  if (style == _selectionStyle) return;
  _selectionStyle = style;
  setNeedsDisplay();
}

void UITableViewCellState::setSeparators(const RowSeparators& separators) {
  if (separators == _separators) return;
  _separators = separators;
  setNeedsDisplay();
}

void UITableViewCellState::setSelectedAtOnce(bool selected) {
  self().setSelected(selected, false);
}

// Animated or not, the colour changes at once.
void UITableViewCellState::setSelected(bool selected, bool) {
  if (selected == _isSelected) return;
  _isSelected = selected;
  setNeedsDisplay();
}

void UITableViewCellState::setHighlightedAtOnce(bool highlighted) {
  self().setHighlighted(highlighted, false);
}

void UITableViewCellState::setHighlighted(bool highlighted, bool) {
  if (highlighted == _isHighlighted) return;
  _isHighlighted = highlighted;
  setNeedsDisplay();
}

void UITableViewCellState::prepareForReuse() {
  self().setSelected(false, false);
  self().setHighlighted(false, false);
}

// The room that an accessory takes from the content, with the gap before it.
CGFloat UITableViewCellState::accessoryRoom() const {
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

void UITableViewCellState::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGRect bounds = UIViewState::bounds();
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

void UITableViewCellState::drawContent(Canvas* canvas) const {
  const CGRect bounds = UIViewState::bounds();
  if (looksSelected()) canvas->fill(bounds, colors::highlight, 0);
  drawSeparators(*canvas, bounds);
  if (_accessoryView) return;
  if (_accessoryType == checkmark) {
    canvas->stroke(checkmarkIn(atRightEdge(checkmarkSize, bounds)), 2, tint());
  } else if (accessoryRoom() > 0) {
    canvas->stroke(chevronIn(atRightEdge(chevron, bounds)), 2, colors::disclosure);
  }
}

void UITableViewCellState::drawSeparators(Canvas& canvas, CGRect bounds) const {
  const CGFloat width = bounds.size.width;
  const CGFloat hairline = 1 / screen().scale;
  const CGFloat left = _separators.insetBelow > 0 ? _separators.insetBelow + imageRoom() : 0;
  if (_separators.above) canvas.fill({{0, 0}, {width, hairline}}, _separators.color, 0);
  if (_separators.below && width > left)
    canvas.fill({{left, bounds.size.height - hairline}, {width - left, hairline}},
                _separators.color, 0);
}

// How far a picture moves texts to the right, and the hairline with them.
CGFloat UITableViewCellState::imageRoom() const {
  const CGSize content = _contentView->bounds().size;
  return cellTextInset(wishOf(_imageView, content.height)) - cellTextInset({});
}

}  // namespace desktop::uikit
