// SPDX-License-Identifier: MIT
#include "tests/support/kept_seed.h"

#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>

namespace support {

namespace {

constexpr std::size_t mostBytes = 64 << 10;

}  // namespace

void keepSeed(std::string_view bytes) {
  static const char* const folder = std::getenv("LUMIFACT_SEEDS");
  if (folder == nullptr || bytes.empty() || bytes.size() > mostBytes) return;
  const std::string name = std::to_string(std::hash<std::string_view>()(bytes));
  std::ofstream(folder + ("/test-" + name), std::ios::binary) << bytes;
}

void keepSeed(std::span<const std::uint8_t> bytes) {
  keepSeed(std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
}

}  // namespace support
