// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/item_selection.h"

#include <algorithm>
#include <utility>

namespace desktop::uikit {
namespace {

// Where an item is after others were inserted at these paths.
ItemPath movedByInsertions(ItemPath path, const std::set<ItemPath>& inserted) {
  for (const ItemPath other : inserted)
    if (other.section == path.section && other.item <= path.item) ++path.item;
  return path;
}

ItemPath movedByDeletions(ItemPath path, const std::set<ItemPath>& deleted) {
  const auto before = std::ranges::count_if(deleted, [path](ItemPath other) {
    return other.section == path.section && other.item < path.item;
  });
  path.item -= before;
  return path;
}

}  // namespace

void ItemSelection::allow(bool allows) {
  _isAllowed = allows;
  if (!allows) deselectAll();
}

void ItemSelection::allowMultiple(bool allows) {
  _isMultipleAllowed = allows;
  if (!allows && _paths.size() > 1) deselectAll();
}

void ItemSelection::set(ItemPath path, bool isSelected) {
  const bool changes = isSelected ? _paths.insert(path).second : _paths.erase(path) > 0;
  if (changes) _show(path, isSelected);
}

void ItemSelection::deselectAll() {
  const auto before = _paths;
  for (const ItemPath path : before) set(path, false);
}

void ItemSelection::moveForInserted(const std::set<ItemPath>& inserted) {
  std::set<ItemPath> moved;
  for (const ItemPath path : _paths) moved.insert(movedByInsertions(path, inserted));
  _paths = std::move(moved);
}

void ItemSelection::moveForDeleted(const std::set<ItemPath>& deleted) {
  std::set<ItemPath> moved;
  for (const ItemPath path : _paths)
    if (!deleted.contains(path)) moved.insert(movedByDeletions(path, deleted));
  _paths = std::move(moved);
}

}  // namespace desktop::uikit
