// SPDX-License-Identifier: MIT
#include "desktop/pictures/workers/wake_descriptor.h"

#include <sys/eventfd.h>

#include <cstdint>

namespace desktop::pictures {

WakeDescriptor::WakeDescriptor() : _descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

// Neither can fail but for a counter that is full, or empty, already.
void WakeDescriptor::signal() {
  eventfd_write(number(), 1);
}

void WakeDescriptor::clear() {
  std::uint64_t count = 0;
  eventfd_read(number(), &count);
}

}  // namespace desktop::pictures
