// SPDX-License-Identifier: MIT
//
// Whether the bars around a single photo are on show: the navigation bar, the toolbar and the
// status bar. Without them a photo stands on black, as in the dark.
#pragma once

#include "bridge/uikit.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

class BarsVisibility {
 public:
  // Around the view of a controller, which outlives it.
  explicit BarsVisibility(UIViewController controller) : _controller(controller) {}

  bool areShown() const { return _areShown; }
  // Whether that is a change.
  bool show(bool shown, bool animated);
  // The toolbar is the photo's alone: it comes with the controller, and goes when another one takes
  // its place in the navigation.
  void showToolbar(bool animated) const;
  void hideToolbarForAnother(bool animated) const;

 private:
  void showStatusBar(bool shown);

  UIViewController _controller;  // borrowed
  bool _areShown = true;
  bool _hasStatusBar = false;  // while the bars are hidden: whether it comes back with them
};

}  // namespace desktop::photos_ui
