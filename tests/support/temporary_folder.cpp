// SPDX-License-Identifier: MIT
#include "tests/support/temporary_folder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace support {

TemporaryFolder::TemporaryFolder()
    : _path((std::filesystem::temp_directory_path() / "tool-test-XXXXXX").native()) {
  if (::mkdtemp(_path.data()) == nullptr) throw std::runtime_error("no temporary folder");
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code error;
  std::filesystem::remove_all(_path, error);
}

std::string TemporaryFolder::write(std::string_view name, std::string_view bytes) const {
  const std::filesystem::path path = file(name);
  std::filesystem::create_directories(path.parent_path());
  std::ofstream stream(path, std::ios::binary);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!stream.flush()) throw std::runtime_error("cannot write " + path.native());
  return path.native();
}

std::string TemporaryFolder::write(std::string_view name,
                                   std::span<const std::uint8_t> bytes) const {
  return write(name, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

std::string contentsOf(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace support
