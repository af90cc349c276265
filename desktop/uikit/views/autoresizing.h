// SPDX-License-Identifier: MIT
//
// How a view follows its superview's size by its autoresizing mask.
#pragma once

#include "bridge/geometry.h"
#include "desktop/platform.h"

namespace desktop::uikit {

// The frame of a view with this mask after its superview went from one size to another: what that
// gained goes to the flexible parts, in proportion to what they had.
CGRect autoresized(CGRect frame, NSUInteger mask, CGSize oldSize, CGSize newSize);

}  // namespace desktop::uikit
