// SPDX-License-Identifier: MIT
//
// Things beside each other at uneven distances.
#pragma once

namespace samples {

// Calls visit(position) for `from` and on, as long as it is below `to`; step() is the distance to
// the next one, asked for after each visit.
template <typename Step, typename Visit>
void forEachPosition(float from, float to, Step step, Visit visit) {
  float position = from;
  while (position < to) {
    visit(position);
    position += step();
  }
}

}  // namespace samples
