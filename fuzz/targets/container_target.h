// SPDX-License-Identifier: MIT
//
// What every image container's fuzz target does.
#pragma once

#include <cstdint>
#include <optional>

#include "desktop/io/source_reader.h"
#include "model/description.h"
#include "model/result.h"

namespace fuzz {

using ContainerReader = std::optional<model::Error> (*)(desktop::SourceReader&, model::Dictionary&);

// Reads the bytes as the container and walks all that came out of it.
inline int runContainer(const std::uint8_t* data, std::size_t size, ContainerReader read) {
  desktop::MemorySource source({data, data + size});
  desktop::SourceReader file(source);
  model::Dictionary properties;
  static_cast<void>(read(file, properties));
  static_cast<void>(model::description(properties));
  return 0;
}

}  // namespace fuzz
