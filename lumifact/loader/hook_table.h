// SPDX-License-Identifier: MIT
//
// Every method of the host that the extension replaces or adds.
#pragma once

#include "bridge/hook.h"

namespace lumifact {

// The rows in the order in which they are applied.
std::span<const bridge::HookRow> hookTable();

}  // namespace lumifact
