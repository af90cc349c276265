// SPDX-License-Identifier: MIT
//
// What every metadata block's fuzz target does.
#pragma once

#include <cstdint>

#include "io/byte_view.h"
#include "model/description.h"

namespace fuzz {

using BlockReader = void (*)(io::ByteView, model::Dictionary&);

// Reads the bytes as the block and walks all that came out of it.
inline int runBlock(const std::uint8_t* data, std::size_t size, BlockReader read) {
  model::Dictionary properties;
  read(io::ByteView({data, size}), properties);
  static_cast<void>(model::description(properties));
  return 0;
}

}  // namespace fuzz
