// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/collection/collection_cells.h"

#include "desktop/uikit/lists/ui_collection_reusable_view.h"
#include "desktop/uikit/lists/ui_collection_view_cell.h"

namespace desktop::uikit {
namespace {

// What supplementary views wait under; no identifier holds the mark between its parts.
std::string supplementaryKey(NSString kind, NSString identifier) {
  return kind.utf8() + '\0' + identifier.utf8();
}

}  // namespace

void CollectionCells::show(const CollectionElement& element, const View& view) {
  _shown.show(element, view);
  _pool.shown(view);
}

void CollectionCells::putAway(UIView view) {
  _pool.put(UICollectionReusableViewState::of(view).poolKey(), View::retain(view));
}

UICollectionViewCell CollectionCells::cellAt(ItemPath path) const {
  return UICollectionViewCell(viewOf({{}, path}).get());
}

std::optional<ItemPath> CollectionCells::pathOf(UIView cell) const {
  const auto element = _shown.keyOf(cell);
  return element && element->isItem() ? std::optional(element->path) : std::nullopt;
}

NSArray CollectionCells::ofKind(const std::string& kind) const {
  const auto all = makeNew<NSMutableArray>();
  for (const auto& [element, view] : _shown.all())
    if (element.kind == kind) all->add(view.get());
  return Owned<NSArray>::retain(all.get()).autorelease();
}

NSArray CollectionCells::indexPaths() const {
  const auto all = makeNew<NSMutableArray>();
  for (const auto& [element, view] : _shown.all())
    if (element.isItem()) all->add(indexPathOf(element.path));
  return Owned<NSArray>::retain(all.get()).autorelease();
}

void CollectionCells::registerCellClass(NSString identifier, Class aClass) {
  _pool.registerClass(identifier.utf8(), aClass);
}

void CollectionCells::registerClass(NSString kind, NSString identifier, Class aClass) {
  _pool.registerClass(supplementaryKey(kind, identifier), aClass);
}

UIView CollectionCells::dequeueCell(NSString identifier, CGRect frame) {
  const std::string key = identifier.utf8();
  return _pool.dequeue(key, [&](Class registered) {
    return UICollectionReusableViewState::make(
        registered ? registered : UICollectionViewCellState::classObject(), identifier, key, frame);
  });
}

UIView CollectionCells::dequeue(NSString kind, NSString identifier, CGRect frame) {
  const std::string key = supplementaryKey(kind, identifier);
  return _pool.dequeue(key, [&](Class registered) {
    return UICollectionReusableViewState::make(
        registered ? registered : UICollectionReusableViewState::classObject(), identifier, key,
        frame);
  });
}

}  // namespace desktop::uikit
