// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/collection/collection_data_source.h"

#include <algorithm>

#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/lists/ui_collection_reusable_view.h"
#include "desktop/uikit/lists/ui_collection_view_cell.h"

namespace desktop::uikit {
namespace {

// A data source can answer any number. What is more than this is left out.
constexpr NSInteger maximalSections = 100'000;
constexpr NSInteger maximalItems = 100'000'000;

}  // namespace

ItemCounts CollectionDataSource::counts() const {
  const auto told = asked<NSInteger, "numberOfSectionsInCollectionView:">(_source, _collection);
  const NSInteger sections = std::clamp(told.value_or(_source ? 1 : 0), 0L, maximalSections);
  std::vector<NSInteger> counts;
  for (NSInteger section = 0; section < sections; ++section) {
    const auto items =
        asked<NSInteger, "collectionView:numberOfItemsInSection:">(_source, _collection, section);
    counts.push_back(std::clamp(items.value_or(0), 0L, maximalItems));
  }
  return ItemCounts(std::move(counts));
}

Owned<UIView> CollectionDataSource::view(const CollectionElement& element) const {
  if (element.isItem()) return cell(element.path);
  const auto answer =
      asked<Object, "collectionView:viewForSupplementaryElementOfKind:atIndexPath:">(
          _source, _collection, NSString::make(element.kind), indexPathOf(element.path));
  return Owned<UIView>::retain(as<UICollectionReusableView>(answer.value_or(Object())));
}

Owned<UIView> CollectionDataSource::cell(ItemPath path) const {
  const auto answer = asked<Object, "collectionView:cellForItemAtIndexPath:">(_source, _collection,
                                                                              indexPathOf(path));
  const auto cell = as<UICollectionViewCell>(answer.value_or(Object()));
  if (cell) return Owned<UIView>::retain(cell);
  return UICollectionReusableViewState::make(UICollectionViewCellState::classObject(), {}, {}, {});
}

}  // namespace desktop::uikit
