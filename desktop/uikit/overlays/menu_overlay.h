// SPDX-License-Identifier: MIT
//
// The edit menu while it is on show: a view over the whole window with the bubble in it. Touches
// beside the bubble go through to what is below, and hide the menu.
#pragma once

#include <functional>
#include <string>
#include <vector>
#include "desktop/uikit/views/ui_view.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controllers.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class Canvas;

struct MenuCommand {
  std::string title;  // UTF-8
  std::function<void()> run;
};

class MenuOverlay : public Bound<MenuOverlay, UIViewState> {
 public:
  using Bound::Bound;
  ~MenuOverlay();
  static Class classObject();

  // What is called, once each, when it ends.
  struct Ends {
    std::function<void()> begun;   // it hides, or goes with its window
    std::function<void()> hidden;  // it was hidden and is out of its window
  };

  // Fills a window with a new overlay that it owns; the frame is the bubble's in the window's
  // coordinates.
  static UIView show(UIView window, std::vector<MenuCommand> commands, CGRect target, Ends ends);

  const std::vector<MenuCommand>& commands() const { return _commands; }
  // The bubble with its arrow, in the overlay's coordinates.
  CGRect bubbleFrame() const { return _bubble; }
  // Takes itself out of the window and tells whoever wanted to know.
  void hide();
  void run(std::size_t index);

 private:
  UIView hitTest(CGPoint point, UIEvent event);
  void drawContent(Canvas* canvas) const;
  void addButtons();
  void arrange(CGRect target);

  std::vector<MenuCommand> _commands;
  Ends _ends;
  std::vector<Owned<UIControl>> _buttons;
  CGRect _bubble;
  CGFloat _arrow = 0;  // x of its point
  bool _pointsDown = true;
};

}  // namespace desktop::uikit
