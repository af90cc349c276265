// SPDX-License-Identifier: MIT
#include "desktop/photos_runtime/photos_runtime.h"
#include "desktop/photos_ui/photos_host.h"

namespace desktop::photos_ui {

PhotosHost& host() {
  static auto& made = *new PhotosHost;
  return made;
}

void registerPhotosUI() {
  photos::registerPhotos();
}

}  // namespace desktop::photos_ui
