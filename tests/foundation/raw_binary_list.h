// SPDX-License-Identifier: MIT
//
// Binary property lists put together object by object, right or wrong, for the tests.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/property_lists/property_list.h"
#include "tests/support/kept_seed.h"

namespace foundation {

inline io::ByteView viewOf(std::string_view bytes) {
  support::keepSeed(bytes);
  return io::ByteView({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
}

inline std::string bigEndian(std::uint64_t number, int size) {
  std::string bytes;
  for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
    bytes += static_cast<char>(number >> shift & 0xFF);
  }
  return bytes;
}

// The trailer's fields; the defaults of the last two are what the objects ask for.
struct RawTrailer {
  int offsetSize = 4;
  int referenceSize = 2;
  std::uint64_t objectCount = 0;
  std::uint64_t top = 0;
  std::uint64_t offsetTable = 0;

  std::string bytes() const {
    return std::string(6, '\0') + bigEndian(static_cast<std::uint64_t>(offsetSize), 1) +
           bigEndian(static_cast<std::uint64_t>(referenceSize), 1) + bigEndian(objectCount, 8) +
           bigEndian(top, 8) + bigEndian(offsetTable, 8);
  }
};

// A list of the objects, the first one its root; references take two bytes.
inline std::string rawList(std::span<const std::string> objects) {
  std::string bytes = "bplist00";
  std::string table;
  for (const std::string& object : objects) {
    table += bigEndian(bytes.size(), 4);
    bytes += object;
  }
  RawTrailer trailer;
  trailer.objectCount = objects.size();
  trailer.offsetTable = bytes.size();
  return bytes + table + trailer.bytes();
}
inline std::string rawList(const std::vector<std::string>& objects) {
  return rawList(std::span<const std::string>(objects));
}

// An array object (marker 0xA0) of up to 14 elements, or another container's marker.
inline std::string rawContainer(const std::vector<std::uint64_t>& references, int marker = 0xA0,
                                std::size_t counted = 1) {
  std::string object =
      bigEndian(static_cast<std::uint64_t>(marker) | references.size() / counted, 1);
  for (const std::uint64_t reference : references) object += bigEndian(reference, 2);
  return object;
}
inline std::string rawDictionary(const std::vector<std::uint64_t>& references) {
  return rawContainer(references, 0xD0, 2);
}

}  // namespace foundation
