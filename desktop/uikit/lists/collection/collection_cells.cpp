// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/collection/collection_cells.h"

#include "desktop/uikit/lists/ui_collection_reusable_view.h"
#include "desktop/uikit/lists/ui_collection_view_cell.h"

namespace desktop::uikit {
namespace {

// What supplementary views wait under; no identifier holds the mark between its parts.
std::string supplementaryKey(bridge::NSString kind, bridge::NSString identifier) {
  return kind.utf8() + '\0' + identifier.utf8();
}

}  // namespace

void CollectionCells::show(const CollectionElement& element, const View& view) {
  _shown.show(element, view);
  _pool.shown(view);
}

void CollectionCells::putAway(bridge::UIView view) {
  _pool.put(UICollectionReusableView::of(view).poolKey(), View::retain(view));
}

handles::UICollectionViewCell CollectionCells::cellAt(ItemPath path) const {
  return handles::UICollectionViewCell(viewOf({{}, path}).get());
}

std::optional<ItemPath> CollectionCells::pathOf(bridge::UIView cell) const {
  const auto element = _shown.keyOf(cell);
  return element && element->isItem() ? std::optional(element->path) : std::nullopt;
}

bridge::NSArray CollectionCells::ofKind(const std::string& kind) const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const auto& [element, view] : _shown.all())
    if (element.kind == kind) all->add(view.get());
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

bridge::NSArray CollectionCells::indexPaths() const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const auto& [element, view] : _shown.all())
    if (element.isItem()) all->add(indexPathOf(element.path));
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

void CollectionCells::registerCellClass(bridge::NSString identifier, Class aClass) {
  _pool.registerClass(identifier.utf8(), aClass);
}

void CollectionCells::registerClass(bridge::NSString kind, bridge::NSString identifier,
                                    Class aClass) {
  _pool.registerClass(supplementaryKey(kind, identifier), aClass);
}

bridge::UIView CollectionCells::dequeueCell(bridge::NSString identifier, CGRect frame) {
  const std::string key = identifier.utf8();
  return _pool.dequeue(key, [&](Class registered) {
    return UICollectionReusableView::make(
        registered ? registered : UICollectionViewCell::classObject(), identifier, key, frame);
  });
}

bridge::UIView CollectionCells::dequeue(bridge::NSString kind, bridge::NSString identifier,
                                        CGRect frame) {
  const std::string key = supplementaryKey(kind, identifier);
  return _pool.dequeue(key, [&](Class registered) {
    return UICollectionReusableView::make(
        registered ? registered : UICollectionReusableView::classObject(), identifier, key, frame);
  });
}

}  // namespace desktop::uikit
