// SPDX-License-Identifier: MIT
#include "tests/samples/sample_files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace samples {

std::string libraryPath(const std::string& relative) {
  return SAMPLE_LIBRARY "/" + relative;
}

std::string againPath(const std::string& relative) {
  return SAMPLE_LIBRARY_AGAIN "/" + relative;
}

std::vector<std::string> filesBelow(const std::string& folder) {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
    if (entry.is_regular_file())
      files.push_back(std::filesystem::relative(entry.path(), folder).string());
  std::sort(files.begin(), files.end());
  return files;
}

std::vector<std::uint8_t> bytesAt(const std::string& path, std::uint64_t offset,
                                  std::size_t count) {
  std::ifstream file(path, std::ios::binary);
  file.seekg(static_cast<std::streamoff>(offset));
  std::vector<std::uint8_t> bytes(count);
  file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(count));
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

}  // namespace samples
