// SPDX-License-Identifier: MIT
//
// What a gesture recogniser sends. It keeps that to itself: a list of records, in private fields.
#pragma once

#include "bridge/uikit/ui_view.h"

namespace bridge {

// Whether one of the recogniser's actions is of this name. A recogniser without such fields sends
// nothing.
inline bool sendsAction(Object recognizer, SEL action) {
  const auto targets = as<NSArray>(objectField(recognizer, "_targets"));
  for (NSUInteger index = 0; index < targets.count(); ++index)
    if (sameSelector(selectorField(targets.at(index), "_action"), action)) return true;
  return false;
}

}  // namespace bridge
