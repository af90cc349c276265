// SPDX-License-Identifier: MIT
#include "lumifact/details/one_up_hooks.h"

namespace lumifact {

constinit bridge::Stock<void(id, SEL)> stockPUOneUpBarsController_updateBars;
void PUOneUpBarsController_updateBars(id self, SEL command) {
  stockPUOneUpBarsController_updateBars(self, command);
}

constinit bridge::Stock<id(id, SEL)> stockPUOneUpTilingLayout_init;
id PUOneUpTilingLayout_init(id self, SEL command) {
  return stockPUOneUpTilingLayout_init(self, command);
}

constinit bridge::Stock<void(id, SEL, BOOL)> stockPUOneUpViewController_viewWillDisappear;
void PUOneUpViewController_viewWillDisappear(id self, SEL command, BOOL animated) {
  stockPUOneUpViewController_viewWillDisappear(self, command, animated);
}

constinit bridge::Stock<void(id, SEL)> stockPUOneUpViewController_viewDidLoad;
void PUOneUpViewController_viewDidLoad(id self, SEL command) {
  stockPUOneUpViewController_viewDidLoad(self, command);
}

constinit bridge::Stock<void(id, SEL, id)> stockPUOneUpViewController_setTilingView;
void PUOneUpViewController_setTilingView(id self, SEL command, id view) {
  stockPUOneUpViewController_setTilingView(self, command, view);
}

}  // namespace lumifact
