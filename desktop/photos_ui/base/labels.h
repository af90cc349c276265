// SPDX-License-Identifier: MIT
//
// Labels as this application sets them.
#pragma once

#include <string_view>

#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/color.h"
#include "desktop/uikit/graphics/text_engine.h"

namespace desktop::photos_ui {

// A new label of one line; +1.
Owned<UILabel> makeLabel(const uikit::FontFace& face, uikit::Color color);

// Puts a text into a label where it is another one.
void showText(UILabel label, std::string_view text);

}  // namespace desktop::photos_ui
