// SPDX-License-Identifier: MIT
//
// Which way a paragraph is written.
#pragma once

#include <string_view>

namespace desktop::uikit {

// Whether the first letter of the text belongs to a script that is written from right to left.
bool isRightToLeft(std::u16string_view text);
// Whether any letter of it does.
bool hasRightToLeft(std::u16string_view text);

}  // namespace desktop::uikit
