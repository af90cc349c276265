// SPDX-License-Identifier: MIT
//
// What all controllers of the photo application share.
#pragma once

#include <string>

#include "desktop/library/photo_library.h"
#include "desktop/pictures/picture_loader.h"
#include "foundation/device_root.h"

namespace desktop::photos_ui {

struct PhotosHost {
  library::PhotoLibrary* library = nullptr;  // null where it could not be opened
  std::string libraryProblem;                // why it could not be: "FOLDER: reason"
  pictures::PictureLoader* pictures = nullptr;
  std::string settingsFolder;              // of extensions' pages of settings; empty: none
  foundation::DeviceRoot deviceRoot{"/"};  // where their preference files lie
};

// Of this process; set by the application before it shows anything.
PhotosHost& host();

}  // namespace desktop::photos_ui
