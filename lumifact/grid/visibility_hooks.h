// SPDX-License-Identifier: MIT
//
// Whether the album list or a panorama is on screen, which decides where badges go.
#pragma once

#include "bridge/hook.h"

namespace lumifact {

extern constinit bridge::Stock<void(id, SEL, BOOL)> stockPUAlbumListViewController_viewWillAppear;
void PUAlbumListViewController_viewWillAppear(id self, SEL command, BOOL animated);

extern constinit bridge::Stock<void(id, SEL, BOOL)>
    stockPUAlbumListViewController_viewWillDisappear;
void PUAlbumListViewController_viewWillDisappear(id self, SEL command, BOOL animated);

extern constinit bridge::Stock<void(id, SEL, BOOL)>
    stockPUPhotosPanoramaViewController_viewWillAppear;
void PUPhotosPanoramaViewController_viewWillAppear(id self, SEL command, BOOL animated);

extern constinit bridge::Stock<void(id, SEL, BOOL)>
    stockPUPhotosPanoramaViewController_viewWillDisappear;
void PUPhotosPanoramaViewController_viewWillDisappear(id self, SEL command, BOOL animated);

}  // namespace lumifact
