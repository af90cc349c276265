// SPDX-License-Identifier: MIT
#include "desktop/uikit/overlays/menu_overlay.h"

#include <algorithm>
#include <utility>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controls/action_control.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

// In points.
constexpr CGFloat buttonHeight = 36;
constexpr CGFloat arrowHeight = 9;
constexpr CGFloat arrowHalfWidth = 9;
constexpr CGFloat cornerRadius = 8;
constexpr CGFloat edge = 8;  // between the bubble and the sides of the screen
constexpr CGFloat titleMargin = 13;
constexpr CGFloat fontSize = 14;
constexpr Color background = Color::white(0.11);
constexpr Color pressed = Color::white(0.33);
constexpr Color separator = Color::white(0.38);

}  // namespace

Class MenuOverlay::classObject() {
  static const Class made = ClassBuilder<MenuOverlay>("UICalloutBar")
                                .method<"hitTest:withEvent:", &MenuOverlay::hitTest>()
                                .method<"drawContentOn:", &MenuOverlay::drawContent>()
                                .build();
  return made;
}

MenuOverlay::~MenuOverlay() {
  if (const auto begun = std::exchange(_ends.begun, nullptr)) begun();
}

UIView MenuOverlay::show(UIView window, std::vector<MenuCommand> commands, CGRect target,
                         Ends ends) {
  const auto made = makeWith<UIView, "initWithFrame:">(classObject(), window.bounds());
  MenuOverlay& overlay = of(made.get());
  overlay._commands = std::move(commands);
  overlay._ends = std::move(ends);
  overlay.addButtons();
  overlay.arrange(target);
  window.addSubview(made);
  return made;
}

void MenuOverlay::addButtons() {
  for (std::size_t index = 0; index < _commands.size(); ++index) {
    const ActionControl::Look look{.title = NSString::make(_commands[index].title),
                                   .fontSize = fontSize,
                                   .color = colors::white,
                                   .pressedBackground = pressed,
                                   .margin = titleMargin};
    _buttons.push_back(ActionControl::make(look, [this, index] { run(index); }));
    self().addSubview(_buttons.back());
  }
}

// Above the target where there is room, else below it, always between the sides of the screen.
void MenuOverlay::arrange(CGRect target) {
  const CGSize room = self().bounds().size;
  CGFloat width = 0;
  for (const auto& button : _buttons) width += button->sizeThatFits(room).width;
  const CGFloat height = buttonHeight + arrowHeight;
  const CGFloat mid = middle(target).x;
  const CGFloat left = std::max(edge, std::min(mid - width / 2, room.width - edge - width));
  const CGFloat top = screen().statusBarHeight;
  _pointsDown = target.origin.y - height >= top || bottom(target) + height > room.height;
  const CGFloat y = std::clamp(_pointsDown ? target.origin.y - height : bottom(target), top,
                               std::max(top, room.height - height));
  _bubble = {{left, y}, {width, height}};
  const CGFloat reach = cornerRadius + arrowHalfWidth;
  _arrow = std::max(left + reach, std::min(mid, right(_bubble) - reach));
  CGFloat x = left;
  for (const auto& button : _buttons) {
    const CGFloat own = button->sizeThatFits(room).width;
    button->setFrame({{x, _pointsDown ? y : y + arrowHeight}, {own, buttonHeight}});
    x += own;
  }
}

void MenuOverlay::hide() {
  const auto kept = Owned<UIView>::retain(self());
  if (const auto begun = std::exchange(_ends.begun, nullptr)) begun();
  self().removeFromSuperview();
  if (const auto hidden = std::exchange(_ends.hidden, nullptr)) hidden();
}

void MenuOverlay::run(std::size_t index) {
  if (index >= _commands.size()) return;
  const auto command = _commands[index].run;
  hide();
  if (command) command();
}

// Hiding waits until the way of the touch is found: the views are being walked.
UIView MenuOverlay::hitTest(CGPoint point, UIEvent event) {
  const auto hit = super<UIView, "hitTest:withEvent:">(point, event);
  if (hit != self() || contains(_bubble, point)) return hit;
  scheduler().callAfter(0, [me = Owned<UIView>::retain(self())] { of(me.get()).hide(); });
  return {};
}

void MenuOverlay::drawContent(Canvas* canvas) const {
  CGRect box = _bubble;
  box.size.height = buttonHeight;
  if (!_pointsDown) box.origin.y += arrowHeight;
  canvas->fill(Path::roundedRect(box, cornerRadius), background);
  const CGFloat base = _pointsDown ? bottom(box) : box.origin.y;
  const CGFloat point = _pointsDown ? base + arrowHeight : base - arrowHeight;
  canvas->fill(Path()
                   .moveTo({_arrow - arrowHalfWidth, base})
                   .lineTo({_arrow, point})
                   .lineTo({_arrow + arrowHalfWidth, base})
                   .close(),
               background);
  for (std::size_t index = 1; index < _buttons.size(); ++index)
    canvas->fill({{_buttons[index]->frame().origin.x, box.origin.y}, {0.5, buttonHeight}},
                 separator, 0);
}

}  // namespace desktop::uikit
