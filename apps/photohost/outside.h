// SPDX-License-Identifier: MIT
//
// What the application asks of the desktop around it: links, the clipboard, files to save.
#pragma once

#include <string>

#include "desktop/uikit/base/outside.h"

namespace photohost {

// Opens links with whatever the user has for them, and tells in an alert, with the link to copy,
// when nothing handles one; texts go to the clipboard, or into a file of the user's documents.
desktop::uikit::Outside desktopOutside();

// Opens nothing and saves nothing: what a script sees. Copied texts go to a clipboard of its own.
desktop::uikit::Outside recordingOutside();

// The folder of the user's pictures.
std::string userPictureFolder();

}  // namespace photohost
