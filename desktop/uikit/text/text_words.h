// SPDX-License-Identifier: MIT
//
// Words, as selecting by touch finds them.
#pragma once

#include <string_view>

#include "bridge/geometry.h"
#include "desktop/platform.h"

namespace desktop::uikit {

// The word that a unit belongs to, in UTF-16 units; one character where it belongs to none.
// Empty for an empty text; an index beyond the text means its last unit.
NSRange wordAt(std::u16string_view text, std::size_t index);

}  // namespace desktop::uikit
