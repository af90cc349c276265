// SPDX-License-Identifier: MIT
//
// A file descriptor that wakes whoever polls it.
#pragma once

#include "io/descriptor.h"

namespace desktop::pictures {

// Readable from signal() to clear(). Both may be called from any thread.
class WakeDescriptor {
 public:
  WakeDescriptor();

  int number() const { return _descriptor.number(); }
  void signal();
  void clear();

 private:
  io::Descriptor _descriptor;
};

}  // namespace desktop::pictures
