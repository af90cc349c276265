// SPDX-License-Identifier: MIT
//
// A property list in either format, written back and read again: what was read must survive.
#include <cstdint>
#include <cstdlib>

#include "foundation/property_lists/property_list.h"
#include "model/description.h"

using namespace foundation;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto list = parsePropertyList(io::ByteView({data, size}));
  if (!list) return 0;
  const auto written = serializePropertyList(list->root, PropertyListFormat::binary);
  if (!written) return 0;
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(written->data());
  const auto again = parsePropertyList(io::ByteView({bytes, written->size()}));
  if (again && model::description(again->root) != model::description(list->root)) std::abort();
  return 0;
}
