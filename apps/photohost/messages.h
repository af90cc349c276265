// SPDX-License-Identifier: MIT
//
// What the application says on standard error.
#pragma once

#include <string_view>

namespace photohost {

// Writes "photohost: TEXT", a line in which nothing commands a terminal, whatever names and paths
// the text holds.
void complain(std::string_view text);

// Has what Qt says of its own accord written likewise.
void takeQtMessages();

}  // namespace photohost
