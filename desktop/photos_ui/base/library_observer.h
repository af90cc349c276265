// SPDX-License-Identifier: MIT
//
// Who is told when the library changes, for as long as it lives.
#pragma once

#include "desktop/library/photo_library.h"

namespace desktop::photos_ui {

class LibraryObserver {
 public:
  LibraryObserver();
  virtual ~LibraryObserver();
  LibraryObserver(const LibraryObserver&) = delete;
  LibraryObserver& operator=(const LibraryObserver&) = delete;

  virtual void libraryChanged(const library::LibraryChange& change) = 0;
};

// Tells all observers what changed in the library.
void tellLibraryObservers(const library::LibraryChange& change);

}  // namespace desktop::photos_ui
