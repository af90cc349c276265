// SPDX-License-Identifier: MIT
//
// Autorelease pools under the names that compilers call; here a pool is Foundation's own object.
#include "bridge/runtime/class_lookup.h"
#include "desktop/platform.h"

void* objc_autoreleasePoolPush() {
  const Class poolClass = bridge::classNamed<"NSAutoreleasePool">();
  return bridge::send<id, "init">(bridge::send<id, "alloc">(poolClass));
}

void objc_autoreleasePoolPop(void* pool) {
  bridge::send<void, "drain">(static_cast<id>(pool));
}
