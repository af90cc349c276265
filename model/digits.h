// SPDX-License-Identifier: MIT
//
// The digits of numbers in texts, whatever the C locale.
#pragma once

namespace model {

constexpr bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

}  // namespace model
