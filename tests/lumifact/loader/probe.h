// SPDX-License-Identifier: MIT
//
// A window into a loaded extension, for tests: what it keeps to itself in life.
#pragma once

#include <vector>

#include "bridge/hook.h"
#include "lumifact/state/settings.h"

namespace lumifact::host {

struct Probe {
  const Settings& settings;
  const double& infoLineHeight;
  std::vector<bridge::HookRow> rows;
  // The extension's own classes, registered by the call; nil where the superclass is missing.
  std::vector<Class> (*ownClasses)();
};

}  // namespace lumifact::host

// The one function of the library that can be found by name.
using ExtensionProbe = const lumifact::host::Probe*();
