// SPDX-License-Identifier: MIT
#include "lumifact/grid/grid_size_hooks.h"

namespace lumifact {

constinit bridge::Stock<CGSize(id, SEL, NSInteger)>
    stockPUSectionedGridLayout_layoutItemSizeForColumn;
CGSize PUSectionedGridLayout_layoutItemSizeForColumn(id self, SEL command, NSInteger column) {
  return stockPUSectionedGridLayout_layoutItemSizeForColumn(self, command, column);
}

constinit bridge::Stock<void(id, SEL, CGSize)> stockPUSectionedGridLayout_setItemSize;
void PUSectionedGridLayout_setItemSize(id self, SEL command, CGSize size) {
  stockPUSectionedGridLayout_setItemSize(self, command, size);
}

constinit bridge::Stock<void(id, SEL)> stockPUPhotosAlbumViewController_updateGlobalFooter;
void PUPhotosAlbumViewController_updateGlobalFooter(id self, SEL command) {
  stockPUPhotosAlbumViewController_updateGlobalFooter(self, command);
}

void PUPhotosAlbumViewController_LFChangeGridsize(id, SEL, id) {}

void PUPhotosAlbumViewController_addGridSizeButton(id, SEL) {}

}  // namespace lumifact
