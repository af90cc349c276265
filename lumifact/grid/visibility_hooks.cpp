// SPDX-License-Identifier: MIT
#include "lumifact/grid/grid_hooks.h"
#include "lumifact/grid/visibility.h"

namespace lumifact {
namespace {

constinit bool albumListIsVisible = false;
constinit bool panoramaIsVisible = false;

void albumListWillAppear(id self, SEL command, BOOL animated) {
  stock<&albumListWillAppear>(self, command, animated);
  albumListIsVisible = true;
}

void albumListWillDisappear(id self, SEL command, BOOL animated) {
  stock<&albumListWillDisappear>(self, command, animated);
  albumListIsVisible = false;
}

void panoramaWillAppear(id self, SEL command, BOOL animated) {
  stock<&panoramaWillAppear>(self, command, animated);
  panoramaIsVisible = true;
}

void panoramaWillDisappear(id self, SEL command, BOOL animated) {
  stock<&panoramaWillDisappear>(self, command, animated);
  panoramaIsVisible = false;
}

}  // namespace

bool isAlbumListVisible() {
  return albumListIsVisible;
}

bool isPanoramaVisible() {
  return panoramaIsVisible;
}

constinit const HookRow visibilityHooks[] = {
    replaced<"PUAlbumListViewController", "viewWillAppear:", &albumListWillAppear>,
    replaced<"PUAlbumListViewController", "viewWillDisappear:", &albumListWillDisappear>,
    replaced<"PUPhotosPanoramaViewController", "viewWillAppear:", &panoramaWillAppear>,
    replaced<"PUPhotosPanoramaViewController", "viewWillDisappear:", &panoramaWillDisappear>,
};

}  // namespace lumifact
