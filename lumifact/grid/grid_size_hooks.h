// SPDX-License-Identifier: MIT
//
// The button that makes the thumbnails of an album larger.
#pragma once

#include "bridge/geometry.h"
#include "bridge/hook.h"

namespace lumifact {

extern constinit bridge::Stock<CGSize(id, SEL, NSInteger)>
    stockPUSectionedGridLayout_layoutItemSizeForColumn;
CGSize PUSectionedGridLayout_layoutItemSizeForColumn(id self, SEL command, NSInteger column);

extern constinit bridge::Stock<void(id, SEL, CGSize)> stockPUSectionedGridLayout_setItemSize;
void PUSectionedGridLayout_setItemSize(id self, SEL command, CGSize size);

extern constinit bridge::Stock<void(id, SEL)> stockPUPhotosAlbumViewController_updateGlobalFooter;
void PUPhotosAlbumViewController_updateGlobalFooter(id self, SEL command);

void PUPhotosAlbumViewController_LFChangeGridsize(id self, SEL command, id sender);

void PUPhotosAlbumViewController_addGridSizeButton(id self, SEL command);

}  // namespace lumifact
