// SPDX-License-Identifier: MIT
//
// Every method of the host that the extension replaces or adds.
#pragma once

#include "bridge/hook.h"
#include "lumifact/platform.h"

namespace lumifact {

// The rooms' lists in the order in which they are applied.
std::span<const HookList> hookTable();

}  // namespace lumifact
