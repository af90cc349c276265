// SPDX-License-Identifier: MIT
//
// What the phone's libraries have, as this process has it.
#pragma once

#include <string>

namespace device::emulated {

// The address of a symbol as the phone's libraries name it ("_strlen"), or null where neither the
// host nor this library has it.
const void* hostSymbol(const std::string& name);

}  // namespace device::emulated
