// SPDX-License-Identifier: MIT
//
// Decoded pictures as images for views.
#pragma once

#include "bridge/uikit.h"
#include "desktop/pictures/pixels/picture.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

// A new image of the picture's pixels at the screen's scale; autoreleased, nil for none.
UIImage imageOf(const pictures::SharedPicture& picture);

}  // namespace desktop::photos_ui
