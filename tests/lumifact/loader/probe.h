// SPDX-License-Identifier: MIT
//
// A window into a loaded extension, for tests: what it keeps to itself in life.
#pragma once

#include <span>

#include "bridge/hook.h"
#include "lumifact/loader/settings.h"

namespace lumifact::host {

struct Probe {
  const Settings& settings;
  const double& infoLineHeight;
  std::span<const bridge::HookRow> rows;
};

}  // namespace lumifact::host

// The one function of the library that can be found by name.
using ExtensionProbe = const lumifact::host::Probe*();
