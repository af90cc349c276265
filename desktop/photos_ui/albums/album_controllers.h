// SPDX-License-Identifier: MIT
//
// Which controller shows which album.
#pragma once

#include "bridge/uikit.h"
#include "desktop/library/albums.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

// The controller of an album, of the class for its kind; +1. It follows the album, and is empty
// when that is gone.
Owned<UIViewController> makeAlbumController(const library::Album& album);

}  // namespace desktop::photos_ui
