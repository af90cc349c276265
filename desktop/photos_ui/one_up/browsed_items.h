// SPDX-License-Identifier: MIT
//
// The items that are gone through one by one, and the one on show.
#pragma once

#include <functional>
#include <map>
#include <string>

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

  // The film of the Live Photo on show, or the still of the film that stands in its place; null for
  // every other item.
  library::ItemPointer otherHalf() const;
  // The list with the other half in the place of the item on show. REQUIRES: there is one.
  ItemListPointer listWithOtherHalf();

  // The items whose files are still there, as they are now: null for one that is gone. A null list
  // where nothing changed.
  using ItemNow = std::function<library::ItemPointer(const std::string& uuid)>;
  ItemListPointer listAfterChange(const ItemNow& itemNow) const;

 private:
  ItemListPointer _list = std::make_shared<ItemList>();
  std::size_t _index = 0;
  std::map<std::string, library::ItemPointer> _stills;  // of films on show, by their uuids
};

}  // namespace desktop::photos_ui
