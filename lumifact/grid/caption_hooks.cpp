// SPDX-License-Identifier: MIT
#include "bridge/geometry.h"
#include "lumifact/grid/grid_hooks.h"

namespace lumifact {
namespace {

id initCell(id self, SEL command, CGRect frame) {
  return stock<&initCell>(self, command, frame);
}

void layOutCell(id self, SEL command) {
  stock<&layOutCell>(self, command);
}

id sizeLabelView(id, SEL) {
  return nullptr;
}

void setSizeLabelView(id, SEL, id) {}

id sizeLabel(id, SEL) {
  return nullptr;
}

void setSizeLabel(id, SEL, id) {}

void layOutContentView(id self, SEL command) {
  stock<&layOutContentView>(self, command);
}

id cellForItem(id self, SEL command, id collectionView, id indexPath) {
  return stock<&cellForItem>(self, command, collectionView, indexPath);
}

}  // namespace

constinit const HookRow captionHooks[] = {
    replaced<"PUPhotosGridCell", "initWithFrame:", &initCell>,
    replaced<"PUPhotosGridCell", "layoutSubviews", &layOutCell>,
    added<"PUPhotosGridCell", "sizeLabelView", "@@:", &sizeLabelView>,
    added<"PUPhotosGridCell", "setSizeLabelView:", "v@:@", &setSizeLabelView>,
    added<"PUPhotosGridCell", "sizeLabel", "@@:", &sizeLabel>,
    added<"PUPhotosGridCell", "setSizeLabel:", "v@:@", &setSizeLabel>,
    replaced<"PUPhotoViewContentHelper", "layoutSubviewsOfContentView", &layOutContentView>,
};

constinit const HookRow shownCaptionHooks[] = {
    replaced<"PUPhotosGridViewController", "collectionView:cellForItemAtIndexPath:", &cellForItem>,
};

}  // namespace lumifact
