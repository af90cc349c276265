// SPDX-License-Identifier: MIT
//
// Text broken into lines that an ordinary terminal shows whole.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lumifact::tool {

constexpr std::size_t textWidth = 80;  // columns

// Takes what stands before the first separator off the text, and the separator with it.
std::string_view takePart(std::string_view& text, char separator);

// Appends plain ASCII text and a line break. Lines are broken between words where they would pass
// the width, and begin `indent` columns in; line breaks of the text stay.
// REQUIRES: the text is appended at that column.
void appendWrapped(std::string& into, std::string_view text, std::size_t indent);

}  // namespace lumifact::tool
