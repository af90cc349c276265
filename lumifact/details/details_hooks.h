// SPDX-License-Identifier: MIT
//
// What the extension replaces and adds in the single-photo view, a list a subject.
#pragma once

#include "bridge/hook.h"
#include "lumifact/platform.h"

namespace lumifact {

// The details button, and which photo is shown.
extern const HookRow oneUpHooks[4];
// The action that shows the details of the item, and its alert.
extern const HookRow viewDetailsHooks[2];
// The long press on the photo.
extern const HookRow photoLongPressHooks[1];

}  // namespace lumifact
