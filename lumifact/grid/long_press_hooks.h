// SPDX-License-Identifier: MIT
//
// The long press on a thumbnail.
#pragma once

#include "bridge/hook.h"

namespace lumifact {

void PUPhotosGridViewController_lumifactLongPress(id self, SEL command, id gesture);

extern constinit bridge::Stock<void(id, SEL)> stockPUPhotosGridViewController_viewDidLoad;
void PUPhotosGridViewController_viewDidLoad(id self, SEL command);

}  // namespace lumifact
