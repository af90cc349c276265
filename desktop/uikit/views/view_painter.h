// SPDX-License-Identifier: MIT
//
// Paints trees of views: shadow, background, layers, content, subviews and border of each, from
// back to front.
#pragma once

#include "bridge/uikit/ui_view.h"

namespace desktop::uikit {

class Canvas;

// Paints all windows of the stage, as they are shown now, in points of the screen.
void paintStage(Canvas& canvas);
// Paints a view and what is in it where it stands in its superview.
void paintView(bridge::UIView view, Canvas& canvas);

}  // namespace desktop::uikit
