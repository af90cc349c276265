// SPDX-License-Identifier: MIT
//
// Text as it is painted: nothing in it turns the writing around or hides, whoever wrote it.
#pragma once

#include <string>
#include <string_view>

namespace desktop::uikit {

// The text with U+FFFD for every lone surrogate and for what has no shape of its own: embeddings,
// overrides and isolates of a direction, separators of lines, blanks without a width. Marks of
// direction and joiners stay beside a letter beyond ASCII, as scripts and symbols need them. As
// long as before.
std::u16string visibleText(std::u16string_view text);

}  // namespace desktop::uikit
