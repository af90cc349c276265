// SPDX-License-Identifier: MIT
//
// Where the pop-up's box stands in the overlay, in points.
#pragma once

#include "bridge/geometry.h"

namespace lumifact {

// The box before its text is known: square, 10 narrower than the overlay and at most 320 wide,
// unless the overlay is too low for it.
CGRect initialBox(CGSize overlay);

// The box of a text: no wider than its content, as high as its content however high that is.
// `fittedWidth` is its width after it was fitted to its text.
CGRect fittedBox(CGSize overlay, CGFloat fittedWidth, CGSize content);

// What casts the shadow of a box of this size.
CGRect shadowOf(CGSize box);

}  // namespace lumifact
