// SPDX-License-Identifier: MIT
//
// The extensions of a format description in the video report.
#pragma once

#include <string>

#include "model/key_order.h"
#include "model/value.h"

namespace lumifact {

// Appends a line an extension. An array stands in brackets; of a dictionary only its last
// array-valued entry is shown, in a block of its own, and nothing where it has none.
void appendExtensions(std::string& text, const model::Dictionary& extensions,
                      const model::KeyComparison& keyOrder);

}  // namespace lumifact
