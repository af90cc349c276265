// SPDX-License-Identifier: MIT
//
// A folder for a test's files, gone with the test.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace support {

class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::string& path() const { return _path; }
  std::string file(std::string_view name) const { return _path + "/" + std::string(name); }

  // Writes a file, with the folders above it; returns its path.
  std::string write(std::string_view name, std::string_view bytes) const;
  std::string write(std::string_view name, std::span<const std::uint8_t> bytes) const;

 private:
  std::string _path;
};

// The bytes of a file; empty where it cannot be read.
std::string contentsOf(const std::string& path);

}  // namespace support
