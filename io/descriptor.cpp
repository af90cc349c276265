// SPDX-License-Identifier: MIT
#include "io/descriptor.h"

#include <unistd.h>

namespace io {

void Descriptor::reset(int number) {
  if (_number >= 0) ::close(_number);
  _number = number;
}

}  // namespace io
