// SPDX-License-Identifier: MIT
//
// Where smaller renderings of a photo lie, for photos whose main file is not on this device.
#pragma once

#include <string>
#include <string_view>

namespace desktop::library {

// Paths as the device knows them; whether there is such a file is another question.
struct PreviewFiles {
  std::string fullsizeImage;
  std::string largePreview;
  std::string mediumPreview;
};

// The derivatives of "/var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG", below
// "/var/mobile/Media/PhotoData":
//
//   Mutations/DCIM/100APPLE/IMG_0001full.JPG      full size, with the edits applied
//   Thumbnails/DCIM/100APPLE/IMG_0001large.JPG
//   Metadata/DCIM/100APPLE/IMG_0001medium.JPG
//
// A photo outside "/var/mobile/Media" has its whole path there instead of "DCIM/100APPLE".
// REQUIRES: the path is absolute, as the device knows it.
PreviewFiles previewFilesOf(std::string_view devicePath);

}  // namespace desktop::library
