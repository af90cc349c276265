// SPDX-License-Identifier: MIT
#include "bridge/geometry.h"
#include "lumifact/grid/grid_hooks.h"

namespace lumifact {
namespace {

CGSize itemSizeForColumn(id self, SEL command, NSInteger column) {
  return stock<&itemSizeForColumn>(self, command, column);
}

void setItemSize(id self, SEL command, CGSize size) {
  stock<&setItemSize>(self, command, size);
}

void updateFooter(id self, SEL command) {
  stock<&updateFooter>(self, command);
}

void changeGridSize(id, SEL, id) {}

void addGridSizeButton(id, SEL) {}

}  // namespace

constinit const HookRow gridSizeHooks[] = {
    replaced<"PUSectionedGridLayout", "layoutItemSizeForColumn:", &itemSizeForColumn>,
    replaced<"PUSectionedGridLayout", "setItemSize:", &setItemSize>,
    replaced<"PUPhotosAlbumViewController", "updateGlobalFooter", &updateFooter>,
    added<"PUPhotosAlbumViewController", "LFChangeGridsize:", "v@:@", &changeGridSize>,
    added<"PUPhotosAlbumViewController", "addGridSizeButton", "v@:", &addGridSizeButton>,
};

}  // namespace lumifact
