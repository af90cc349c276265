// SPDX-License-Identifier: MIT
//
// Texts on the screen, as somebody reading it would find them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/uikit.h"
#include "desktop/platform.h"

namespace desktop::script {

struct ScreenText {
  std::string text;  // UTF-8
  CGRect place;      // of the view that shows it, in points of the screen
  UIView view;       // borrowed
};

// The texts of all views that can be seen, from back to front. A text view that is on screen
// counts with all of its text, wherever it is scrolled to.
std::vector<ScreenText> textsOnScreen();

// Whether some text on screen contains this one.
bool isOnScreen(std::string_view text);

// Where to touch a text: the middle of the front-most view that shows exactly it, else of one that
// contains it; none where there is none.
std::optional<CGPoint> placeOf(std::string_view text);

}  // namespace desktop::script
