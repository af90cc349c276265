// SPDX-License-Identifier: MIT
//
// What every image container's fuzz target does.
#pragma once

#include <cstdint>
#include <optional>

#include "io/source_reader.h"
#include "model/description.h"
#include "model/result.h"

namespace fuzz {

using ContainerReader = std::optional<model::Error> (*)(io::SourceReader&, model::Dictionary&);

// Reads the bytes as the container and walks all that came out of it.
inline int runContainer(const std::uint8_t* data, std::size_t size, ContainerReader read) {
  io::MemorySource source({data, data + size});
  io::SourceReader file(source);
  model::Dictionary properties;
  static_cast<void>(read(file, properties));
  static_cast<void>(model::description(properties));
  return 0;
}

}  // namespace fuzz
