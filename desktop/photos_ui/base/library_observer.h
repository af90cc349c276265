// SPDX-License-Identifier: MIT
//
// Who is told when the library changes, for as long as it lives.
#pragma once

#include <functional>

#include "desktop/library/photo_library.h"

namespace desktop::photos_ui {

class LibraryObserver {
 public:
  using Told = std::function<void(const library::LibraryChange& change)>;

  explicit LibraryObserver(Told told);
  ~LibraryObserver();
  LibraryObserver(const LibraryObserver&) = delete;
  LibraryObserver& operator=(const LibraryObserver&) = delete;

  void tell(const library::LibraryChange& change) const { _told(change); }

 private:
  Told _told;
};

// Tells all observers what changed in the library.
void tellLibraryObservers(const library::LibraryChange& change);

}  // namespace desktop::photos_ui
