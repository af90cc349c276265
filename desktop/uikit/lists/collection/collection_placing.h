// SPDX-License-Identifier: MIT
//
// How a collection's views come to lie where its layout says.
#pragma once

#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

// REQUIRES: both are not nil, and the view is a UICollectionReusableView.
void placeElement(UIView view, UICollectionViewLayoutAttributes attributes);

// Adds an element's view to a collection: above all that lies lower and above the background, below
// what was added by others on top.
void insertElement(UIViewState& collection, UIView view, NSInteger zIndex, UIView background);

}  // namespace desktop::uikit
