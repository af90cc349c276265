// SPDX-License-Identifier: MIT
//
// The single-photo view: its details button, the long press on its photo, and which photo is
// shown.
#pragma once

#include "bridge/hook.h"

namespace lumifact {

extern constinit bridge::Stock<void(id, SEL)> stockPUOneUpBarsController_updateBars;
void PUOneUpBarsController_updateBars(id self, SEL command);

extern constinit bridge::Stock<id(id, SEL)> stockPUOneUpTilingLayout_init;
id PUOneUpTilingLayout_init(id self, SEL command);

extern constinit bridge::Stock<void(id, SEL, BOOL)> stockPUOneUpViewController_viewWillDisappear;
void PUOneUpViewController_viewWillDisappear(id self, SEL command, BOOL animated);

extern constinit bridge::Stock<void(id, SEL)> stockPUOneUpViewController_viewDidLoad;
void PUOneUpViewController_viewDidLoad(id self, SEL command);

extern constinit bridge::Stock<void(id, SEL, id)> stockPUOneUpViewController_setTilingView;
void PUOneUpViewController_setTilingView(id self, SEL command, id view);

}  // namespace lumifact
