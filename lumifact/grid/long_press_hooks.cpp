// SPDX-License-Identifier: MIT
#include "lumifact/grid/grid_hooks.h"

namespace lumifact {
namespace {

void longPress(id, SEL, id) {}

void gridDidLoad(id self, SEL command) {
  stock<&gridDidLoad>(self, command);
}

}  // namespace

constinit const HookRow longPressHooks[] = {
    added<"PUPhotosGridViewController", "lumifactLongPress:", "v@:@", &longPress>,
    replaced<"PUPhotosGridViewController", "viewDidLoad", &gridDidLoad>,
};

}  // namespace lumifact
