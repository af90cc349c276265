// SPDX-License-Identifier: MIT
#include "lumifact/grid/grid_hooks.h"

namespace lumifact {
namespace {

void albumListWillAppear(id self, SEL command, BOOL animated) {
  stock<&albumListWillAppear>(self, command, animated);
}

void albumListWillDisappear(id self, SEL command, BOOL animated) {
  stock<&albumListWillDisappear>(self, command, animated);
}

void panoramaWillAppear(id self, SEL command, BOOL animated) {
  stock<&panoramaWillAppear>(self, command, animated);
}

void panoramaWillDisappear(id self, SEL command, BOOL animated) {
  stock<&panoramaWillDisappear>(self, command, animated);
}

}  // namespace

constinit const HookRow visibilityHooks[] = {
    replaced<"PUAlbumListViewController", "viewWillAppear:", &albumListWillAppear>,
    replaced<"PUAlbumListViewController", "viewWillDisappear:", &albumListWillDisappear>,
    replaced<"PUPhotosPanoramaViewController", "viewWillAppear:", &panoramaWillAppear>,
    replaced<"PUPhotosPanoramaViewController", "viewWillDisappear:", &panoramaWillDisappear>,
};

}  // namespace lumifact
