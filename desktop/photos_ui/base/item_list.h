// SPDX-License-Identifier: MIT
//
// What a grid or a single photo goes through: items in sections, as they were at one time. Lists
// are shared and never change; after a change of the library there is a new one.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "desktop/library/photo_library.h"
#include "desktop/library/sections.h"
#include "desktop/uikit/lists/index_path.h"

namespace desktop::photos_ui {

class ItemList {
 public:
  ItemList() = default;
  // In one section without a title, or in the given ones, which cover all items in order.
  explicit ItemList(std::vector<library::ItemPointer> items);
  ItemList(std::vector<library::ItemPointer> items, std::vector<library::Section> sections);

  std::size_t size() const { return _items.size(); }
  bool isEmpty() const { return _items.empty(); }
  // REQUIRES: index < size().
  const library::ItemPointer& at(std::size_t index) const { return _items[index]; }
  const std::vector<library::ItemPointer>& items() const { return _items; }
  const std::vector<library::Section>& sections() const { return _sections; }
  std::span<const library::ItemPointer> itemsOf(const library::Section& section) const;

  // Between an item's number through all sections and its path. None where there is no such item.
  std::optional<std::size_t> indexOf(uikit::ItemPath path) const;
  std::optional<uikit::ItemPath> pathOf(std::size_t index) const;

  // Where the file of an item of another list stands in this one, also where it changed meanwhile.
  std::optional<std::size_t> find(const library::LibraryItem& item) const;
  // The same for whoever was at an item of another list and stays as near to it as can be: where
  // its file is gone, at the next that is left, else at the last. None in an empty list.
  std::optional<std::size_t> placeAfterChange(const ItemList& before, std::size_t index) const;

 private:
  std::optional<std::size_t> findDated(const library::LibraryItem& item) const;

  std::vector<library::ItemPointer> _items;
  std::vector<library::Section> _sections;
};

using ItemListPointer = std::shared_ptr<const ItemList>;

// All items of the library in the sections of a zoom level.
ItemListPointer listOfLibrary(const library::PhotoLibrary& library, library::ZoomLevel level);
// The items of an album, in one section.
ItemListPointer listOfAlbum(const library::Album& album);

}  // namespace desktop::photos_ui
