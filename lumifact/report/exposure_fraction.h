// SPDX-License-Identifier: MIT
//
// Exposure times as photographers write them: 1/120.
#pragma once

#include <string>

namespace lumifact {

// The time in seconds as "1/120", or "1 1/2" from one second on; whole seconds repeat themselves
// as the numerator ("2 2/1"). Numerator and denominator saturate at 32 bits.
std::string exposureFraction(float seconds);

}  // namespace lumifact
