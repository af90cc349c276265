// SPDX-License-Identifier: MIT
//
// Paints trees of views: shadow, background, layers, content, subviews and border of each, from
// back to front.
#pragma once

#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class Canvas;

// Paints a view and what is in it, as shown now, where it stands in its superview.
void paintView(UIView view, Canvas& canvas);

}  // namespace desktop::uikit
