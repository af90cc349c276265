// SPDX-License-Identifier: MIT
//
// Changes of what a collection contains. They are shown at once, without animation; what is
// selected stays selected where it moves.
#include <algorithm>

#include "desktop/uikit/lists/ui_collection_view.h"

namespace desktop::uikit {
namespace {

std::set<ItemPath> pathsOf(bridge::NSArray paths) {
  std::set<ItemPath> all;
  for (NSUInteger index = 0; index < paths.count(); ++index)
    if (const auto path = itemPathOf(paths.at(index))) all.insert(*path);
  return all;
}

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

void UICollectionView::reloadData() {
  _selected.clear();
  contentsChange();
}

void UICollectionView::insertItems(bridge::NSArray paths) {
  const std::set<ItemPath> inserted = pathsOf(paths);
  std::set<ItemPath> moved;
  for (const ItemPath path : _selected) moved.insert(movedByInsertions(path, inserted));
  _selected = std::move(moved);
  contentsChange();
}

void UICollectionView::deleteItems(bridge::NSArray paths) {
  const std::set<ItemPath> deleted = pathsOf(paths);
  std::set<ItemPath> moved;
  for (const ItemPath path : _selected)
    if (!deleted.contains(path)) moved.insert(movedByDeletions(path, deleted));
  _selected = std::move(moved);
  contentsChange();
}

void UICollectionView::reloadItems(bridge::NSArray) {
  contentsChange();
}

void UICollectionView::sectionsChange(bridge::Object) {
  reloadData();
}

// Counts are not asked for in the midst of updates: the next layout does it.
void UICollectionView::performBatchUpdates(const bridge::BlockHeader* updates,
                                           const bridge::BlockHeader* completion) {
  const auto kept = bridge::Owned<bridge::UIView>::retain(self());
  const auto done = bridge::Block<void(bool)>::retain(completion);
  bridge::Block<void()>::retain(updates)();
  contentsChange();
  done(true);
}

void UICollectionView::contentsChange() {
  release();
  recycleAll();
  _isUncounted = true;
  layoutBecameInvalid();
}

}  // namespace desktop::uikit
