// SPDX-License-Identifier: MIT
//
// UIKit, as far as it is used: all of bridge/uikit.
#pragma once

#include "bridge/uikit/ui_font.h"
