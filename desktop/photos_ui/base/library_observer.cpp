// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/base/library_observer.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace desktop::photos_ui {
namespace {

std::vector<LibraryObserver*>& observers() {
  static auto& all = *new std::vector<LibraryObserver*>;
  return all;
}

}  // namespace

LibraryObserver::LibraryObserver(Told told) : _told(std::move(told)) {
  observers().push_back(this);
}

LibraryObserver::~LibraryObserver() {
  std::erase(observers(), this);
}

// Who is told may end others.
void tellLibraryObservers(const library::LibraryChange& change) {
  const auto all = observers();
  for (LibraryObserver* const observer : all)
    if (std::ranges::find(observers(), observer) != observers().end()) observer->tell(change);
}

}  // namespace desktop::photos_ui
