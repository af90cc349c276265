// SPDX-License-Identifier: MIT
//
// The edit menu while it is on show: a view over the whole window with the bubble in it. Touches
// beside the bubble go through to what is below, and hide the menu.
#pragma once

#include "bridge/bound.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"

namespace desktop::uikit {

class Canvas;

class MenuOverlay : public bridge::Bound<MenuOverlay, bridge::UIView> {
 public:
  using Bound::Bound;
  ~MenuOverlay();
  static Class classObject();

  // Fills a window with a new overlay that it owns; the frame is the bubble's in the window's
  // coordinates.
  static bridge::UIView show(bridge::UIView window, std::vector<MenuCommand> commands,
                             std::function<void()> hidden, CGRect target);

  const std::vector<MenuCommand>& commands() const { return _commands; }
  // The bubble with its arrow, in the overlay's coordinates.
  CGRect bubbleFrame() const { return _bubble; }
  // Takes itself out of the window and tells whoever wanted to know.
  void hide();
  void run(std::size_t index);

 private:
  bridge::UIView hitTest(CGPoint point, bridge::UIEvent event);
  void drawContent(Canvas* canvas) const;
  void addButtons();
  void arrange(CGRect target);

  std::vector<MenuCommand> _commands;
  std::function<void()> _hidden;
  std::vector<bridge::Owned<bridge::UIControl>> _buttons;
  CGRect _bubble;
  CGFloat _arrow = 0;  // x of its point
  bool _pointsDown = true;
};

}  // namespace desktop::uikit
