// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/browsed_items.h"

namespace desktop::photos_ui {

library::ItemPointer BrowsedItems::current() const {
  return _index < _list->size() ? _list->at(_index) : nullptr;
}

library::ItemPointer BrowsedItems::at(NSIndexPath path) const {
  const auto place = uikit::itemPathOf(path);
  const auto index = place ? _list->indexOf(*place) : std::nullopt;
  return index ? _list->at(*index) : nullptr;
}

void BrowsedItems::set(ItemListPointer list, std::size_t index) {
  _list = std::move(list);
  _index = index;
}

library::ItemPointer BrowsedItems::otherHalf() const {
  const library::ItemPointer item = current();
  if (!item || item->isLivePhoto()) return item ? item->film : nullptr;
  const auto still = _stills.find(item->uuid);
  return still == _stills.end() ? nullptr : still->second;
}

ItemListPointer BrowsedItems::listWithOtherHalf() {
  const library::ItemPointer item = current();
  auto items = _list->items();
  items[_index] = otherHalf();
  if (item->isLivePhoto()) _stills[item->film->uuid] = item;
  return std::make_shared<const ItemList>(std::move(items), _list->sections());
}

ItemListPointer BrowsedItems::listAfterChange(const ItemNow& itemNow) const {
  std::vector<library::ItemPointer> left;
  for (const library::ItemPointer& item : _list->items())
    if (library::ItemPointer now = itemNow(item->uuid)) left.push_back(std::move(now));
  return left == _list->items() ? nullptr : std::make_shared<const ItemList>(std::move(left));
}

}  // namespace desktop::photos_ui
