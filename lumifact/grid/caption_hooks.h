// SPDX-License-Identifier: MIT
//
// The caption bar of a thumbnail: made with the cell, filled in as the cell is shown, laid out
// with it.
#pragma once

#include "bridge/geometry.h"
#include "bridge/hook.h"

namespace lumifact {

extern constinit bridge::Stock<id(id, SEL, CGRect)> stockPUPhotosGridCell_initWithFrame;
id PUPhotosGridCell_initWithFrame(id self, SEL command, CGRect frame);

extern constinit bridge::Stock<void(id, SEL)> stockPUPhotosGridCell_layoutSubviews;
void PUPhotosGridCell_layoutSubviews(id self, SEL command);

id PUPhotosGridCell_sizeLabelView(id self, SEL command);

void PUPhotosGridCell_setSizeLabelView(id self, SEL command, id view);

id PUPhotosGridCell_sizeLabel(id self, SEL command);

void PUPhotosGridCell_setSizeLabel(id self, SEL command, id label);

extern constinit bridge::Stock<void(id, SEL)>
    stockPUPhotoViewContentHelper_layoutSubviewsOfContentView;
void PUPhotoViewContentHelper_layoutSubviewsOfContentView(id self, SEL command);

extern constinit bridge::Stock<id(id, SEL, id, id)> stockPUPhotosGridViewController_cellForItem;
id PUPhotosGridViewController_cellForItem(id self, SEL command, id collectionView, id indexPath);

}  // namespace lumifact
