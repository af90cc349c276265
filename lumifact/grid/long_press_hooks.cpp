// SPDX-License-Identifier: MIT
#include "lumifact/grid/long_press_hooks.h"

namespace lumifact {

void PUPhotosGridViewController_lumifactLongPress(id, SEL, id) {}

constinit bridge::Stock<void(id, SEL)> stockPUPhotosGridViewController_viewDidLoad;
void PUPhotosGridViewController_viewDidLoad(id self, SEL command) {
  stockPUPhotosGridViewController_viewDidLoad(self, command);
}

}  // namespace lumifact
