// SPDX-License-Identifier: MIT
#include "bridge/guard.h"
#include "lumifact/assets/platform_texts.h"
#include "lumifact/grid/asset_file_size.h"
#include "lumifact/grid/badge_place.h"
#include "lumifact/grid/caption_bar.h"
#include "lumifact/grid/caption_text.h"
#include "lumifact/grid/grid_hooks.h"
#include "lumifact/grid/shared_album.h"
#include "lumifact/state/current_settings.h"

namespace lumifact {
namespace {

std::optional<std::string> captionOf(PHAsset asset) {
  const std::string_view typeName = fileTypeName(asset.uniformTypeIdentifier().utf8());
  return captionText(settings.thumbnailInfoDisplay, static_cast<std::int64_t>(asset.pixelWidth()),
                     static_cast<std::int64_t>(asset.pixelHeight()), typeName,
                     [asset] { return fileSizeText(mainFileSize(asset).value_or(0)); });
}

// A bar that is made invisible here stays so when the cell is used for another item.
void showCaption(PUPhotosGridViewController grid, PUPhotosGridCell cell, NSIndexPath path) {
  if (settings.thumbnailInfoDisplay == 0) return;
  if (isLastOfSharedAlbum(grid, path)) return sizeLabelView.get(cell).setAlpha(0.0);
  if (const auto caption = captionOf(grid.assetAt(path)))
    sizeLabel.get(cell).setText(NSString::make(*caption));
}

id initCell(id self, SEL command, CGRect frame) {
  const id cell = stock<&initCell>(self, command, frame);
  guarded([&] { addCaption(PUPhotosGridCell(cell)); });
  return cell;
}

void layOutCell(id self, SEL command) {
  stock<&layOutCell>(self, command);
  guarded([&] { layOutCaption(PUPhotosGridCell(self)); });
}

id getSizeLabelView(id self, SEL) {
  return sizeLabelView.get(Object(self)).get();
}

void setSizeLabelView(id self, SEL, id view) {
  sizeLabelView.set(Object(self), UIView(view));
}

id getSizeLabel(id self, SEL) {
  return sizeLabel.get(Object(self)).get();
}

void setSizeLabel(id self, SEL, id label) {
  sizeLabel.set(Object(self), UILabel(label));
}

void layOutContentView(id self, SEL command) {
  stock<&layOutContentView>(self, command);
  guarded([&] { placeBadge(PUPhotoViewContentHelper(self)); });
}

id cellForItem(id self, SEL command, id collectionView, id indexPath) {
  const id cell = stock<&cellForItem>(self, command, collectionView, indexPath);
  guarded([&] {
    showCaption(PUPhotosGridViewController(self), PUPhotosGridCell(cell), NSIndexPath(indexPath));
  });
  return cell;
}

}  // namespace

constinit const HookRow captionHooks[] = {
    replaced<"PUPhotosGridCell", "initWithFrame:", &initCell>,
    replaced<"PUPhotosGridCell", "layoutSubviews", &layOutCell>,
    added<"PUPhotosGridCell", "sizeLabelView", "@@:", &getSizeLabelView>,
    added<"PUPhotosGridCell", "setSizeLabelView:", "v@:@", &setSizeLabelView>,
    added<"PUPhotosGridCell", "sizeLabel", "@@:", &getSizeLabel>,
    added<"PUPhotosGridCell", "setSizeLabel:", "v@:@", &setSizeLabel>,
    replaced<"PUPhotoViewContentHelper", "layoutSubviewsOfContentView", &layOutContentView>,
};

constinit const HookRow shownCaptionHooks[] = {
    replaced<"PUPhotosGridViewController", "collectionView:cellForItemAtIndexPath:", &cellForItem>,
};

}  // namespace lumifact
