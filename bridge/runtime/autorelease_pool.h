// SPDX-License-Identifier: MIT
//
// A stretch of code at whose end autoreleased objects go.
#pragma once

#include "bridge/runtime/objc.h"

namespace bridge {

// Open from construction to destruction; pools nest as scopes do.
class AutoreleasePool {
 public:
  AutoreleasePool() : _pool(objc_autoreleasePoolPush()) {}
  ~AutoreleasePool() { objc_autoreleasePoolPop(_pool); }
  AutoreleasePool(const AutoreleasePool&) = delete;
  AutoreleasePool& operator=(const AutoreleasePool&) = delete;

 private:
  void* _pool;
};

}  // namespace bridge
