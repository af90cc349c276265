// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/picture_image.h"

#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/ui_image.h"

namespace desktop::photos_ui {

UIImage imageOf(const pictures::SharedPicture& picture) {
  return picture ? uikit::UIImageState::make(picture, uikit::screen().scale) : UIImage();
}

}  // namespace desktop::photos_ui
