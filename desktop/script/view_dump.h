// SPDX-License-Identifier: MIT
//
// A view as JSON.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"

namespace desktop::script {

// One view and everything in it. Lengths are in points; what is animated is told as it is shown
// now.
nlohmann::ordered_json dumpView(UIView view);

}  // namespace desktop::script
