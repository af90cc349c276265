// SPDX-License-Identifier: MIT
//
// UIView's class methods that animate: blocks in, the animator does the work. Durations and delays
// are in seconds; a completion may be null.
#pragma once

#include "bridge/block.h"
#include "bridge/geometry.h"
#include "desktop/platform.h"

namespace desktop::uikit {

void animateChanges(double duration, const BlockHeader* changes);
void animateToCompletion(double duration, const BlockHeader* changes,
                         const BlockHeader* completion);
// Of the options the curve is honoured.
void animateWithOptions(double duration, double delay, NSUInteger options,
                        const BlockHeader* changes, const BlockHeader* completion);
void performWithoutAnimation(const BlockHeader* changes);

}  // namespace desktop::uikit
