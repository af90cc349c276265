// SPDX-License-Identifier: MIT
//
// What a dump tells of the controllers on screen: presentation, navigation, alert, sheet and menu.
#pragma once

#include "desktop/script/node_dump.h"

namespace desktop::script {

void addControllers(Json& screen);

}  // namespace desktop::script
