// SPDX-License-Identifier: MIT
#include "lumifact/grid/caption_hooks.h"

namespace lumifact {

constinit bridge::Stock<id(id, SEL, CGRect)> stockPUPhotosGridCell_initWithFrame;
id PUPhotosGridCell_initWithFrame(id self, SEL command, CGRect frame) {
  return stockPUPhotosGridCell_initWithFrame(self, command, frame);
}

constinit bridge::Stock<void(id, SEL)> stockPUPhotosGridCell_layoutSubviews;
void PUPhotosGridCell_layoutSubviews(id self, SEL command) {
  stockPUPhotosGridCell_layoutSubviews(self, command);
}

id PUPhotosGridCell_sizeLabelView(id, SEL) {
  return nullptr;
}

void PUPhotosGridCell_setSizeLabelView(id, SEL, id) {}

id PUPhotosGridCell_sizeLabel(id, SEL) {
  return nullptr;
}

void PUPhotosGridCell_setSizeLabel(id, SEL, id) {}

constinit bridge::Stock<void(id, SEL)> stockPUPhotoViewContentHelper_layoutSubviewsOfContentView;
void PUPhotoViewContentHelper_layoutSubviewsOfContentView(id self, SEL command) {
  stockPUPhotoViewContentHelper_layoutSubviewsOfContentView(self, command);
}

constinit bridge::Stock<id(id, SEL, id, id)> stockPUPhotosGridViewController_cellForItem;
id PUPhotosGridViewController_cellForItem(id self, SEL command, id collectionView, id indexPath) {
  return stockPUPhotosGridViewController_cellForItem(self, command, collectionView, indexPath);
}

}  // namespace lumifact
