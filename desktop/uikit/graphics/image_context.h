// SPDX-License-Identifier: MIT
//
// The bitmaps that are drawn on by Core Graphics' C functions, which bridge/coregraphics.h
// declares.
#pragma once

namespace desktop::uikit {

// Keeps those functions in the program for extensions that look for them when they are mapped.
void provideImageContexts();

}  // namespace desktop::uikit
