// SPDX-License-Identifier: MIT
//
// The items that are gone through one by one, and the one on show.
#pragma once

#include <functional>

#include "desktop/photos_ui/base/item_list.h"

namespace desktop::photos_ui {

class BrowsedItems {
 public:
  const ItemListPointer& list() const { return _list; }
  std::size_t index() const { return _index; }
  // Null where nothing is left to show.
  library::ItemPointer current() const;
  // None where nothing is on show.
  std::optional<uikit::ItemPath> currentPath() const { return _list->pathOf(_index); }
  // Null where there is none.
  library::ItemPointer at(NSIndexPath path) const;

  void set(ItemListPointer list, std::size_t index);
  void goTo(std::size_t index) { _index = index; }

  // The items whose files are still there, as they are now: null for one that is gone. A null list
  // where nothing changed.
  using ItemNow = std::function<library::ItemPointer(const std::string& uuid)>;
  ItemListPointer listAfterChange(const ItemNow& itemNow) const;

 private:
  ItemListPointer _list = std::make_shared<ItemList>();
  std::size_t _index = 0;
};

}  // namespace desktop::photos_ui
