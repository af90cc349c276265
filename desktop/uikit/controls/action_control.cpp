// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/action_control.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/interface_fonts.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

Class ActionControl::classObject() {
  static const Class made = ClassBuilder<ActionControl>("_UIActionControl")
                                .method<"initWithFrame:", &ActionControl::initWithFrame>()
                                .method<"layoutSubviews", &ActionControl::layoutSubviews>()
                                .method<"sizeThatFits:", &ActionControl::sizeThatFits>()
                                .method<"setHighlighted:", &ActionControl::setHighlighted>()
                                .method<"setEnabled:", &ActionControl::setEnabled>()
                                .method<"pressed:", &ActionControl::pressed>()
                                .build();
  return made;
}

ActionControl::ActionControl(id self) : Bound(self), _label(bridge::makeView<UILabel>({})) {}

UIView ActionControl::initWithFrame(CGRect frame) {
  const auto object = super<UIView, "initWithFrame:">(frame);
  self().addSubview(_label);
  self().addTarget(self(), selector<"pressed:">(), bridge::touchUpInside);
  return object;
}

Owned<UIControl> ActionControl::make(const Look& look, std::function<void()> action) {
  auto made = makeNew<UIControl>(ActionControl::classObject());
  ActionControl& control = of(made.get());
  control._action = std::move(action);
  control._color = look.color;
  control._pressedBackground = look.pressedBackground;
  control._margin = look.margin;
  control._label->setText(look.title);
  control._label->setFont(look.isSemibold ? semiboldFont(look.fontSize)
                                          : UIFont::systemFont(look.fontSize));
  control._label->setTextColor(UIColorState::make(look.color));
  control._label->setTextAlignment(alignCenter);
  return made;
}

void ActionControl::layoutSubviews() {
  _label->setFrame(inset(self().bounds(), _margin, 0));
}

CGSize ActionControl::sizeThatFits(CGSize size) const {
  const CGSize text = _label->sizeThatFits(size);
  return {text.width + 2 * _margin, text.height};
}

void ActionControl::setHighlighted(bool isHighlighted) {
  super<void, "setHighlighted:">(isHighlighted);
  self().setBackgroundColor(UIColorState::make(isHighlighted ? _pressedBackground : colors::clear));
}

void ActionControl::setEnabled(bool enabled) {
  super<void, "setEnabled:">(enabled);
  _label->setTextColor(UIColorState::make(enabled ? _color : colors::secondaryText));
}

// What is done may let go of the control and so of the action itself.
void ActionControl::pressed(Object) {
  const auto kept = Owned<UIControl>::retain(self());
  if (const auto action = _action) action();
}

}  // namespace desktop::uikit
