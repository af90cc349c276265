// SPDX-License-Identifier: MIT
#include "desktop/pictures/workers/descriptor.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

namespace desktop::pictures {

void Descriptor::reset(int number) {
  if (_number >= 0) close(_number);
  _number = number;
}

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
