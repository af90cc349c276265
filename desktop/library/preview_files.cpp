// SPDX-License-Identifier: MIT
#include "desktop/library/preview_files.h"

namespace desktop::library {

namespace {

constexpr std::string_view media = "/var/mobile/Media";

std::string derivative(std::string_view folder, std::string_view stem, std::string_view size) {
  std::string path(media);
  path.append("/PhotoData/").append(folder).append(stem);
  return path.append(size).append(".JPG");
}

}  // namespace

PreviewFiles previewFilesOf(std::string_view devicePath) {
  std::string_view stem = devicePath;
  if (stem.starts_with(media) && stem.substr(media.size()).starts_with('/')) {
    stem.remove_prefix(media.size());
  }
  const std::size_t dot = stem.rfind('.');
  // A dot in a folder's name, or before the name, begins no extension.
  if (dot != std::string_view::npos && dot > stem.rfind('/') + 1) stem = stem.substr(0, dot);
  return {.fullsizeImage = derivative("Mutations", stem, "full"),
          .largePreview = derivative("Thumbnails", stem, "large"),
          .mediumPreview = derivative("Metadata", stem, "medium")};
}

}  // namespace desktop::library
