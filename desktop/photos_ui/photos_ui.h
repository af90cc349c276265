// SPDX-License-Identifier: MIT
//
// The classes of the photo application's user interface.
#pragma once

namespace desktop::photos_ui {

// Registers them, so that they are found by name; once, whatever number of calls. A host does it
// before it maps extensions.
void registerPhotosUI();

}  // namespace desktop::photos_ui
