// SPDX-License-Identifier: MIT
//
// A plain main for a fuzz target: runs it on every file of the folders given, so that the corpus
// is a test with any compiler.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int count, char** arguments) {
  std::size_t replayed = 0;
  for (int index = 1; index < count; ++index) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(arguments[index])) {
      if (!entry.is_regular_file()) continue;
      std::ifstream file(entry.path(), std::ios::binary);
      const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
      ++replayed;
    }
  }
  std::printf("replayed %zu files\n", replayed);
  return replayed == 0 ? 1 : 0;
}
