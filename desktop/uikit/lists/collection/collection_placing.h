// SPDX-License-Identifier: MIT
//
// How a collection's views come to lie where its layout says.
#pragma once

#include "desktop/uikit/handles.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

// REQUIRES: both are not nil, and the view is a UICollectionReusableView.
void placeElement(bridge::UIView view, handles::UICollectionViewLayoutAttributes attributes);

// Adds an element's view to a collection: above all that lies lower and above the background, below
// what was added by others on top.
void insertElement(UIView& collection, bridge::UIView view, NSInteger zIndex,
                   bridge::UIView background);

}  // namespace desktop::uikit
