// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/index_path.h"

#include <limits>

namespace desktop::uikit {
namespace {

// Indices beyond this are nobody's: what was negative as a signed number.
constexpr NSUInteger largestIndex = std::numeric_limits<NSInteger>::max();

id pathOf(NSInteger first, NSInteger second) {
  const NSUInteger indexes[] = {static_cast<NSUInteger>(first), static_cast<NSUInteger>(second)};
  return NSIndexPath::of(indexes, 2).get();
}

NSInteger indexAt(id path, NSUInteger position) {
  const NSIndexPath places(path);
  if (places.length() <= position) return NSNotFound;
  const auto index = places.at(position);
  return static_cast<NSInteger>(std::min(index, largestIndex));
}

id NSIndexPath_pathForItem(id, SEL, NSInteger item, NSInteger section) {
  return pathOf(section, item);
}

NSInteger NSIndexPath_section(id self, SEL) {
  return indexAt(self, 0);
}

NSInteger NSIndexPath_item(id self, SEL) {
  return indexAt(self, 1);
}

template <typename Function>
void add(Class to, const char* selector, Function* function) {
  class_addMethod(to, sel_registerName(selector), reinterpret_cast<IMP>(function),
                  encodingOf<Function>.data());
}

}  // namespace

NSIndexPath indexPathOf(ItemPath path) {
  return NSIndexPath(pathOf(path.section, path.item));
}

std::optional<ItemPath> itemPathOf(Object path) {
  const auto indices = as<NSIndexPath>(path);
  if (indices.length() < 2) return {};
  return ItemPath{indexAt(path.get(), 0), indexAt(path.get(), 1)};
}

void addIndexPathMethods() {
  const Class paths = NSIndexPath::classObject();
  const Class meta = object_getClass(rawObject(paths));
  add(meta, "indexPathForRow:inSection:", &NSIndexPath_pathForItem);
  add(meta, "indexPathForItem:inSection:", &NSIndexPath_pathForItem);
  add(paths, "section", &NSIndexPath_section);
  add(paths, "row", &NSIndexPath_item);
  add(paths, "item", &NSIndexPath_item);
}

}  // namespace desktop::uikit
