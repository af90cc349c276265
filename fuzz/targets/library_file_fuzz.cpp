// SPDX-License-Identifier: MIT
#include "io/library_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  io::MemorySource source({data, data + size});
  static_cast<void>(io::readLibraryFacts(source));
  return 0;
}
