// SPDX-License-Identifier: MIT
//
// Going places in the photo application, as a user would: for scripts, keys and the start. Items
// are numbered from 0 in the order of what is on screen.
#pragma once

#include <optional>
#include <string_view>

#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "model/result.h"

namespace desktop::photos_ui {

using Outcome = std::optional<model::Error>;

// The tab bar with Photos and Albums.
Owned<UIViewController> makeRootController();

Outcome openPhotos();
Outcome openAlbums();
// By its title, from wherever the user is.
Outcome openAlbum(std::string_view title);
// The settings of extensions, over whatever is on show but an alert, which wants its answer first.
Outcome openSettings();
// Shows an item of the grid on screen, or of the moments where none is, by itself.
Outcome openItem(long index);
// The same as a preview: a light touch that looks without opening.
Outcome peekItem(long index);
// The same for the item of the grid on show that is at a point of the screen.
Outcome peekAt(CGPoint onScreen);
// "moments", "collections" or "years".
Outcome setZoomLevel(std::string_view name);
// One step back. An alert is answered by its cancel action, or its only one; what else is presented
// goes; what others laid over the whole screen is tapped beside its contents; select mode ends; the
// single photo or the album is left.
Outcome goBack();

// The middle of an item's cell on the screen; the grid is scrolled so that it can be seen.
model::Result<CGPoint> placeOfItem(long index);
// Selects an item by touch, in select mode, which is begun where it is not.
Outcome selectItem(long index);

// The single photo on show, or nil.
UIViewController oneUpOnShow();

}  // namespace desktop::photos_ui
