// SPDX-License-Identifier: MIT
#include "lumifact/details/item_file.h"

#include "lumifact/assets/file_names.h"
#include "lumifact/assets/platform_texts.h"

namespace lumifact {
namespace {

void open(ItemFile& file, NSURL url) {
  file.source = openImageSource(url);
  file.path = Owned<NSString>::retain(url.path());
}

NSURL largePreview(NSURL mediumPreview) {
  if (!mediumPreview) return {};
  return NSURL::withString(NSString::make(largePreviewName(mediumPreview.absoluteString().utf8())));
}

void openPreview(ItemFile& file, PHAsset asset) {
  const NSURL medium = asset.fileURLForMediumPreview();
  for (const NSURL url : {asset.fileURLForFullsizeImage(), asset.fileURLForLargePreview(), medium,
                          largePreview(medium)}) {
    open(file, url);
    if (file.source) return;
  }
}

}  // namespace

ItemFile openItemFile(PHAsset asset) {
  ItemFile file;
  open(file, asset.mainFileURL());
  if (!file.source && !asset.isVideo()) openPreview(file, asset);
  return file;
}

FileFacts factsOf(NSString path, PHAsset asset) {
  const auto attributes = NSFileManager::defaultManager().attributesOfItem(path);
  return {
      .path = shownPath(path.utf8()),
      .fileDate = dateText(attributes.fileModificationDate()),
      .fileSize = fileSizeText(static_cast<std::int64_t>(attributes.fileSize())),
      .pixelHeight = static_cast<std::int64_t>(asset.pixelHeight()),
      .pixelWidth = static_cast<std::int64_t>(asset.pixelWidth()),
  };
}

}  // namespace lumifact
