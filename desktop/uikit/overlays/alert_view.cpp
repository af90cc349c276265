// SPDX-License-Identifier: MIT
//
// One view serves alerts and sheets: boxes for text and buttons over a dimmed screen. Everything is
// measured for the width that there is, then placed in the middle or at the bottom; what is too
// long for the screen scrolls. It knows actions and a closure for the choice, no controller.
#include "desktop/uikit/overlays/alert_view.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controls/action_control.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/overlays/ui_alert_action.h"
#include "desktop/uikit/text/interface_fonts.h"
#include "desktop/uikit/views/ui_label.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

// In points.
constexpr CGFloat alertWidth = 270;
constexpr CGFloat cornerRadius = 13;
constexpr CGFloat sideMargin = 16;
constexpr CGFloat textTop = 20;
constexpr CGFloat textBottom = 20;
constexpr CGFloat textGap = 4;
constexpr CGFloat buttonHeight = 44;
constexpr CGFloat sheetButtonHeight = 57;
constexpr CGFloat sheetMargin = 8;
constexpr CGFloat screenMargin = 24;  // above and below an alert, at least
constexpr CGFloat titleSize = 17;
constexpr CGFloat messageSize = 13;
constexpr CGFloat sheetTextSize = 13;
constexpr CGFloat sheetButtonSize = 20;
constexpr CGFloat comingScale = 1.2;

constexpr Color backdropColor = Color::white(0, 0.4);
constexpr Color boxColor = Color::white(0.98);
constexpr Color lineColor = Color::white(0, 0.2);
constexpr Color destructiveColor = Color::bytes(255, 59, 48);

Owned<UIView> plainView(UIView parent, Color color) {
  auto made = bridge::makeView<UIView>({});
  made->setBackgroundColor(UIColorState::make(color));
  parent.addSubview(made);
  return made;
}

Owned<UIView> makeBox(UIView parent) {
  auto made = plainView(parent, boxColor);
  made->layer().setCornerRadius(cornerRadius);
  made->setClipsToBounds(true);
  return made;
}

// An empty text keeps its line.
CGFloat textHeight(UILabel label, CGFloat width) {
  const auto font = UILabelState::of(label.get()).font();
  const CGFloat line = std::ceil(font.lineHeight());
  return std::max(line, label.sizeThatFits(CGSize{width, 0}).height);
}

CGFloat hairline() {
  return 1 / screen().scale;
}

}  // namespace

Class AlertView::classObject() {
  static const Class made = ClassBuilder<AlertView>("_UIAlertControllerView")
                                .method<"initWithFrame:", &AlertView::initWithFrame>()
                                .method<"layoutSubviews", &AlertView::layoutSubviews>()
                                .method<"touchesEnded:withEvent:", &AlertView::touchesEnded>()
                                .build();
  return made;
}

AlertView::AlertView(id self) : Bound(self) {}

Owned<UIView> AlertView::make(CGRect frame) {
  return makeWith<UIView, "initWithFrame:">(classObject(), frame);
}

UIView AlertView::initWithFrame(CGRect frame) {
  const auto object = super<UIView, "initWithFrame:">(frame);
  _backdrop = plainView(self(), backdropColor);
  _backdrop->setUserInteractionEnabled(false);
  _box = makeBox(self());
  _cancelBox = makeBox(self());
  _text = Owned<UIView>::retain(bridge::makeView<UIScrollView>({}).get());
  _box->addSubview(_text);
  for (auto* label : {&_title, &_message}) {
    *label = bridge::makeView<UILabel>({});
    (*label)->setNumberOfLines(0);
    (*label)->setTextAlignment(alignCenter);
    _text->addSubview(*label);
  }
  return object;
}

void AlertView::show(const Contents& contents, std::function<void(UIAlertAction)> choose,
                     std::function<void()> cancel) {
  _isSheet = contents.isSheet;
  _choose = std::move(choose);
  _cancel = std::move(cancel);
  _title->setText(contents.title);
  _message->setText(contents.message);
  _title->setFont(semiboldFont(_isSheet ? sheetTextSize : titleSize));
  _message->setFont(UIFont::systemFont(_isSheet ? sheetTextSize : messageSize));
  if (_isSheet) {
    _title->setTextColor(UIColorState::make(colors::secondaryText));
    _message->setTextColor(UIColorState::make(colors::secondaryText));
  }
  for (const auto& button : _buttons) button->removeFromSuperview();
  for (const auto& line : _lines) line->removeFromSuperview();
  _buttons.clear();
  _lines.clear();
  _isCancel.clear();
  for (const auto& action : contents.actions)
    addButton(action, contents.preferred ? action.get() == contents.preferred
                                         : UIAlertActionState::of(action.get()).style() ==
                                               UIAlertActionState::cancel);
  setNeedsLayout();
}

void AlertView::addButton(UIAlertAction action, bool isSemibold) {
  const UIAlertActionState& state = UIAlertActionState::of(action.get());
  const ActionControl::Look look{
      .title = state.title(),
      .fontSize = _isSheet ? sheetButtonSize : titleSize,
      .isSemibold = isSemibold,
      .color = state.style() == UIAlertActionState::destructive ? destructiveColor : colors::tint};
  const auto kept = Owned<UIAlertAction>::retain(action);
  const auto button = ActionControl::make(look, [this, kept] { _choose(kept); });
  button->setEnabled(state.isEnabled());
  const bool standsAlone = _isSheet && state.style() == UIAlertActionState::cancel;
  (standsAlone ? _cancelBox : _box)->addSubview(button);
  _buttons.push_back(button);
  _isCancel.push_back(standsAlone);
  _lines.push_back(plainView(standsAlone ? _cancelBox : _box, lineColor));
  _lines.back()->setUserInteractionEnabled(false);
}

// Answers the height of title and message with their margins; nothing takes no room at all.
CGFloat AlertView::layOutText(CGFloat width) const {
  const CGFloat inner = std::max(0.0, width - 2 * sideMargin);
  CGFloat y = textTop;
  bool isEmpty = true;
  for (const UILabel label : {_title.get(), _message.get()}) {
    if (!label.text()) {
      label.setFrame({});
      continue;
    }
    if (!isEmpty) y += textGap;
    const CGFloat height = textHeight(label, inner);
    label.setFrame({{sideMargin, y}, {inner, height}});
    y += height;
    isEmpty = false;
  }
  return isEmpty ? 0 : y + textBottom;
}

// Two buttons of an alert stand side by side where both names fit.
bool AlertView::isSideBySide(CGFloat width) const {
  if (_isSheet || _buttons.size() != 2) return false;
  return std::ranges::all_of(_buttons, [width](const auto& button) {
    return button->sizeThatFits(CGSize{}).width <= width / 2;
  });
}

CGFloat AlertView::buttonsHeight(CGFloat width) const {
  const auto count = static_cast<CGFloat>(std::ranges::count(_isCancel, false));
  if (isSideBySide(width)) return buttonHeight;
  return count * (_isSheet ? sheetButtonHeight : buttonHeight);
}

void AlertView::arrangeButtons(CGFloat top, CGFloat width) {
  const bool isBeside = isSideBySide(width);
  const CGFloat height = _isSheet ? sheetButtonHeight : buttonHeight;
  CGFloat x = 0;
  CGFloat y = top;
  for (std::size_t index = 0; index < _buttons.size(); ++index) {
    const bool standsAlone = _isCancel[index];
    const CGFloat own = isBeside ? width / 2 : width;
    const CGPoint at = standsAlone ? CGPoint{} : CGPoint{x, y};
    _buttons[index]->setFrame({at, {own, height}});
    const bool hasLine = !standsAlone && at.y > 0;
    UIViewState::of(_lines[index].get()).setHidden(!hasLine);
    _lines[index]->setFrame({at, {own, hairline()}});
    if (standsAlone) continue;
    if (isBeside)
      x += own;
    else
      y += height;
  }
  if (!isBeside) return;
  UIViewState::of(_lines[1].get()).setHidden(false);
  _lines[0]->setFrame({{0, top}, {width, hairline()}});
  _lines[1]->setFrame({{width / 2, top}, {hairline(), height}});
}

// In the middle, or at the bottom for a sheet; what is too long for the screen scrolls.
void AlertView::arrange() {
  const CGSize room = self().bounds().size;
  const CGFloat width =
      _isSheet ? std::max(0.0, room.width - 2 * sheetMargin) : std::min(alertWidth, room.width);
  const bool hasCancel = std::ranges::find(_isCancel, true) != _isCancel.end();
  const CGFloat below = hasCancel ? sheetButtonHeight + sheetMargin : 0;
  const CGFloat text = layOutText(width);
  const CGFloat most = room.height - 2 * screenMargin - below;
  // Many actions may take all but a strip of the height: then they too are cut.
  const CGFloat buttons = buttonsHeight(width);
  const CGFloat shownText = std::clamp(most - buttons, std::min(text, buttonHeight), text);
  const CGFloat height = shownText + buttons;
  const CGFloat x = (room.width - width) / 2;
  const CGFloat y = _isSheet ? room.height - sheetMargin - below - height
                             : std::round((room.height - height) / 2);
  _backdrop->setFrame(rectOfSize(room));
  _box->setBounds(CGRect{{}, {width, height}});
  _box->setCenter(CGPoint{x + width / 2, y + height / 2});
  _cancelBox->setFrame({{x, room.height - sheetMargin - sheetButtonHeight},
                        {width, hasCancel ? sheetButtonHeight : 0}});
  _text->setFrame({{0, 0}, {width, shownText}});
  UIScrollView(_text->get()).setContentSize({width, text});
  arrangeButtons(shownText, width);
}

void AlertView::layoutSubviews() {
  arrange();
}

void AlertView::take(Stance stance) {
  const bool isShown = stance == Stance::shown;
  _backdrop->setAlpha(isShown ? 1 : 0);
  if (_isSheet) {
    const CGFloat away = isShown ? 0 : self().bounds().size.height - _box->frame().origin.y;
    const CGAffineTransform down{1, 0, 0, 1, 0, away};
    _box->setTransform(down);
    _cancelBox->setTransform(down);
    return;
  }
  _box->setAlpha(isShown ? 1 : 0);
  if (stance == Stance::coming) _box->setTransform({comingScale, 0, 0, comingScale, 0, 0});
  if (isShown) _box->setTransform({});
}

// Touches beside the boxes end here.
void AlertView::touchesEnded(NSSet touches, UIEvent) {
  const UITouch touch(touches.anyObject().get());
  const CGPoint point = touch.locationIn(self());
  const bool isBeside = !contains(_box->frame(), point) && !contains(_cancelBox->frame(), point);
  if (_isSheet && isBeside && _cancel) _cancel();
}

}  // namespace desktop::uikit
