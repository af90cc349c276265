// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/picture_image.h"

#include "desktop/uikit/stage.h"
#include "desktop/uikit/ui_image.h"

namespace desktop::photos_ui {

bridge::UIImage imageOf(const pictures::SharedPicture& picture) {
  return picture ? uikit::UIImage::make(picture, uikit::stage().scale) : bridge::UIImage();
}

}  // namespace desktop::photos_ui
