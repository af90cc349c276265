// SPDX-License-Identifier: MIT
//
// Every class of this room.
#pragma once

namespace desktop::uikit {

// Registers them all, each after its superclass.
void registerClasses();

}  // namespace desktop::uikit
