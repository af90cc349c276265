// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/base/item_list.h"

#include <algorithm>

namespace desktop::photos_ui {

ItemList::ItemList(std::vector<library::ItemPointer> items) : _items(std::move(items)) {
  if (!_items.empty()) _sections.push_back({.title = {}, .first = 0, .count = _items.size()});
}

ItemList::ItemList(std::vector<library::ItemPointer> items, std::vector<library::Section> sections)
    : _items(std::move(items)), _sections(std::move(sections)) {}

std::span<const library::ItemPointer> ItemList::itemsOf(const library::Section& section) const {
  return std::span(_items).subspan(section.first, section.count);
}

std::optional<std::size_t> ItemList::indexOf(uikit::ItemPath path) const {
  if (path.section < 0 || path.item < 0) return {};
  const auto section = static_cast<std::size_t>(path.section);
  const auto item = static_cast<std::size_t>(path.item);
  if (section >= _sections.size() || item >= _sections[section].count) return {};
  return _sections[section].first + item;
}

std::optional<uikit::ItemPath> ItemList::pathOf(std::size_t index) const {
  if (index >= _items.size()) return {};
  const auto behind = std::ranges::upper_bound(_sections, index, {}, &library::Section::first);
  const auto section = std::prev(behind);
  return uikit::ItemPath{section - _sections.begin(),
                         static_cast<NSInteger>(index - section->first)};
}

std::optional<std::size_t> ItemList::findDated(const library::LibraryItem& item) const {
  const auto dateOf = [](const library::ItemPointer& each) {
    return each->modificationDate.secondsSince1970;
  };
  const double date = item.modificationDate.secondsSince1970;
  const auto first = std::ranges::lower_bound(_items, date, {}, dateOf);
  const auto last = std::ranges::upper_bound(_items, date, {}, dateOf);
  const auto found = std::find_if(
      first, last, [&](const library::ItemPointer& each) { return each->uuid == item.uuid; });
  if (found == last) return {};
  return static_cast<std::size_t>(found - _items.begin());
}

// Most files stand where their date says; one that changed may have got another date.
std::optional<std::size_t> ItemList::find(const library::LibraryItem& item) const {
  if (const auto place = findDated(item)) return place;
  const auto found = std::ranges::find(_items, item.uuid, &library::LibraryItem::uuid);
  if (found == _items.end()) return {};
  return static_cast<std::size_t>(found - _items.begin());
}

std::optional<std::size_t> ItemList::placeAfterChange(const ItemList& before,
                                                      std::size_t index) const {
  if (isEmpty() || index >= before.size()) return {};
  if (const auto place = find(*before.at(index))) return place;
  for (std::size_t next = index + 1; next < before.size(); ++next)
    if (const auto place = findDated(*before.at(next))) return place;
  return size() - 1;
}

ItemListPointer listOfLibrary(const library::PhotoLibrary& library, library::ZoomLevel level) {
  const auto& items = library.items();
  return std::make_shared<ItemList>(
      items, library::makeSections(items, level, foundation::Locale::ofUser("LC_TIME")));
}

ItemListPointer listOfAlbum(const library::Album& album) {
  return std::make_shared<ItemList>(album.items);
}

}  // namespace desktop::photos_ui
