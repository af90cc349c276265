// SPDX-License-Identifier: MIT
//
// The entry to this room.
#pragma once

namespace desktop::uikit {

// Registers UIKit's classes and methods, so that they are found by name; once, whatever number of
// calls. A host does it before it maps extensions.
void registerUIKit();

}  // namespace desktop::uikit
