// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/action_control.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/interface_fonts.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

Class ActionControl::classObject() {
  static const Class made = bridge::ClassBuilder<ActionControl>("_UIActionControl")
                                .method<"initWithFrame:", &ActionControl::initWithFrame>()
                                .method<"layoutSubviews", &ActionControl::layoutSubviews>()
                                .method<"sizeThatFits:", &ActionControl::sizeThatFits>()
                                .method<"setHighlighted:", &ActionControl::setHighlighted>()
                                .method<"setEnabled:", &ActionControl::setEnabled>()
                                .method<"pressed:", &ActionControl::pressed>()
                                .build();
  return made;
}

ActionControl::ActionControl(id self)
    : Bound(self), _label(bridge::makeView<bridge::UILabel>({})) {}

bridge::UIView ActionControl::initWithFrame(CGRect frame) {
  const auto object = super<bridge::UIView, "initWithFrame:">(frame);
  self().addSubview(_label);
  self().addTarget(self(), bridge::selector<"pressed:">(), bridge::touchUpInside);
  return object;
}

bridge::Owned<bridge::UIControl> ActionControl::make(const Look& look,
                                                     std::function<void()> action) {
  auto made = bridge::Owned<bridge::UIControl>::adopt(bridge::send<bridge::UIControl, "init">(
      bridge::send<id, "alloc">(ActionControl::classObject())));
  ActionControl& control = of(made.get());
  control._action = std::move(action);
  control._color = look.color;
  control._pressedBackground = look.pressedBackground;
  control._margin = look.margin;
  control._label->setText(look.title);
  control._label->setFont(look.isSemibold ? semiboldFont(look.fontSize)
                                          : bridge::UIFont::systemFont(look.fontSize));
  control._label->setTextColor(UIColor::make(look.color));
  control._label->setTextAlignment(bridge::alignCenter);
  return made;
}

void ActionControl::layoutSubviews() {
  _label->setFrame(inset(self().bounds(), _margin, 0));
}

CGSize ActionControl::sizeThatFits(CGSize size) const {
  const CGSize text = bridge::send<CGSize, "sizeThatFits:">(_label.get(), size);
  return {text.width + 2 * _margin, text.height};
}

void ActionControl::setHighlighted(bool highlighted) {
  super<void, "setHighlighted:">(highlighted);
  self().setBackgroundColor(UIColor::make(highlighted ? _pressedBackground : colors::clear));
}

void ActionControl::setEnabled(bool enabled) {
  super<void, "setEnabled:">(enabled);
  _label->setTextColor(UIColor::make(enabled ? _color : colors::secondaryText));
}

// What is done may let go of the control and so of the action itself.
void ActionControl::pressed(bridge::Object) {
  const auto kept = bridge::Owned<bridge::UIControl>::retain(self());
  if (const auto action = _action) action();
}

}  // namespace desktop::uikit
