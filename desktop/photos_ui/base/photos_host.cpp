// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/base/photos_host.h"

namespace desktop::photos_ui {

PhotosHost& host() {
  static auto& made = *new PhotosHost;
  return made;
}

}  // namespace desktop::photos_ui
