// SPDX-License-Identifier: MIT
#include "lumifact/details/one_up_state.h"

namespace lumifact {

OneUpState& oneUpState() {
  static auto& kept = *new OneUpState;
  return kept;
}

}  // namespace lumifact
