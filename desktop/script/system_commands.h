// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/script/script_runner.h"
#include "foundation/device_root.h"

namespace desktop::script {

// preference DOMAIN KEY VALUE, which writes a key of the domain's preference file in the device
// root (true and false are flags, whole numbers integers, other numbers reals, all else and what
// is quoted texts), and notify NAME, which posts a notification to all processes of that root.
void addSystemCommands(ScriptRunner& runner, const foundation::DeviceRoot& root);

}  // namespace desktop::script
