// SPDX-License-Identifier: MIT
//
// The entry to this room.
#pragma once

namespace desktop::faces {

// Registers the photo library's classes, so that they are found by name; once, whatever number of
// calls. A host does it before it maps extensions.
void registerPhotos();

}  // namespace desktop::faces
