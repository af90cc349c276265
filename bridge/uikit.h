// SPDX-License-Identifier: MIT
//
// UIKit, as far as it is used: all of bridge/uikit.
#pragma once

#include "bridge/uikit/ui_appearance.h"
#include "bridge/uikit/ui_bars.h"
#include "bridge/uikit/ui_controllers.h"
#include "bridge/uikit/ui_controls.h"
#include "bridge/uikit/ui_lists.h"
#include "bridge/uikit/ui_view.h"
