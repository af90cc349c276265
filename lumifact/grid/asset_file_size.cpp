// SPDX-License-Identifier: MIT
#include "lumifact/grid/asset_file_size.h"

#include "lumifact/assets/file_names.h"
#include "lumifact/state/file_size_cache.h"

namespace lumifact {
namespace {

std::optional<std::uint64_t> sizeOnDisk(NSString path) {
  if (!path) return std::nullopt;
  const auto attributes = NSFileManager::defaultManager().attributesOfItem(path);
  return attributes ? std::optional(attributes.fileSize()) : std::nullopt;
}

std::optional<std::string> pathOf(NSURL file) {
  const NSString path = file.path();
  return path ? std::optional(path.utf8()) : std::nullopt;
}

bool isThere(const std::string& path) {
  return NSFileManager::defaultManager().fileExists(NSString::make(path));
}

AssetFiles filesOf(PHAsset asset) {
  return {.main = pathOf(asset.mainFileURL()),
          .fullsizeImage = pathOf(asset.fileURLForFullsizeImage()),
          .largePreview = pathOf(asset.fileURLForLargePreview()),
          .mediumPreview = pathOf(asset.fileURLForMediumPreview()),
          .isVideo = asset.isVideo()};
}

}  // namespace

std::optional<std::int64_t> mainFileSize(PHAsset asset) {
  return cachedFileSize(asset.uuid(), [asset] { return sizeOnDisk(asset.mainFileURL().path()); });
}

std::optional<std::int64_t> mainOrPreviewFileSize(PHAsset asset) {
  return cachedFileSize(asset.uuid(), [asset]() -> std::optional<std::uint64_t> {
    const auto path = existingFile(filesOf(asset), &isThere);
    return path ? sizeOnDisk(NSString::make(*path)) : std::nullopt;
  });
}

}  // namespace lumifact
