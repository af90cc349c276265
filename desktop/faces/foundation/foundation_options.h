// SPDX-License-Identifier: MIT
//
// What the corrected Foundation of this process is told about the phone that it stands for.
#pragma once

#include <string>

#include "foundation/device_root.h"

namespace desktop::faces {

struct FoundationOptions {
  foundation::DeviceRoot root = foundation::DeviceRoot::ofUser();  // where "/var/mobile" lies
  std::string bundleIdentifier;  // of the main bundle; empty: Foundation's own answer
};

// The options in effect. Not thread-safe: changed before the main loop runs.
FoundationOptions& currentOptions();

}  // namespace desktop::faces
