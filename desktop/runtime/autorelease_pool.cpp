// SPDX-License-Identifier: MIT
//
// Autorelease pools under the names that compilers call; here a pool is Foundation's own object.
#include "bridge/foundation.h"
#include "desktop/platform.h"

void* objc_autoreleasePoolPush() {
  return bridge::makeNew<bridge::NSAutoreleasePool>().detach().get();
}

void objc_autoreleasePoolPop(void* pool) {
  bridge::NSAutoreleasePool(static_cast<id>(pool)).drain();
}
