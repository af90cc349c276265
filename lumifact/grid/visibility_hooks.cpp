// SPDX-License-Identifier: MIT
#include "lumifact/grid/visibility_hooks.h"

namespace lumifact {

constinit bridge::Stock<void(id, SEL, BOOL)> stockPUAlbumListViewController_viewWillAppear;
void PUAlbumListViewController_viewWillAppear(id self, SEL command, BOOL animated) {
  stockPUAlbumListViewController_viewWillAppear(self, command, animated);
}

constinit bridge::Stock<void(id, SEL, BOOL)> stockPUAlbumListViewController_viewWillDisappear;
void PUAlbumListViewController_viewWillDisappear(id self, SEL command, BOOL animated) {
  stockPUAlbumListViewController_viewWillDisappear(self, command, animated);
}

constinit bridge::Stock<void(id, SEL, BOOL)> stockPUPhotosPanoramaViewController_viewWillAppear;
void PUPhotosPanoramaViewController_viewWillAppear(id self, SEL command, BOOL animated) {
  stockPUPhotosPanoramaViewController_viewWillAppear(self, command, animated);
}

constinit bridge::Stock<void(id, SEL, BOOL)> stockPUPhotosPanoramaViewController_viewWillDisappear;
void PUPhotosPanoramaViewController_viewWillDisappear(id self, SEL command, BOOL animated) {
  stockPUPhotosPanoramaViewController_viewWillDisappear(self, command, animated);
}

}  // namespace lumifact
