// SPDX-License-Identifier: MIT
#include "device/loading/file_bytes.h"

#include <fstream>
#include <iterator>

namespace device::loading {

model::Result<Bytes> readFileBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  Bytes bytes{std::istreambuf_iterator<char>(file), {}};
  if (!file) return model::Error{path + ": cannot be read"};
  return bytes;
}

}  // namespace device::loading
