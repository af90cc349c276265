// SPDX-License-Identifier: MIT
//
// The action that shows the details of the item in the single-photo view, and its alert.
#pragma once

#include "bridge/hook.h"

namespace lumifact {

void PUOneUpViewController_LXErrorAlert(id self, SEL command, id message);

void PUOneUpViewController_LXViewExifData(id self, SEL command, id sender);

}  // namespace lumifact
