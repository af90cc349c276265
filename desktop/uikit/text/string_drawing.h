// SPDX-License-Identifier: MIT
//
// What UIKit adds to Foundation's strings.
#pragma once

#include "bridge/runtime/types.h"
#include "desktop/platform.h"

#pragma GCC visibility push(default)
extern "C" {
extern id NSFontAttributeName;  // the attribute that holds a text's font: "NSFont"
}
#pragma GCC visibility pop

namespace desktop::uikit {

// Gives strings sizeWithAttributes:, and NSFontAttributeName its value. Without a font among the
// attributes a text is measured in the system font of 12 points.
void addStringDrawing();

}  // namespace desktop::uikit
