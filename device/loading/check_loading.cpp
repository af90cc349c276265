// SPDX-License-Identifier: MIT
//
// check_loading LIBRARY VERSIONS
// Says which rules of the phone's loader a library breaks, given the versions of the phone's own
// libraries. Silent, with exit status 0, when there is nothing to say.
#include <cstdlib>
#include <iostream>

#include "device/loading/file_bytes.h"
#include "device/loading/rules.h"

namespace {

using namespace device::loading;

int complain(const std::string& text) {
  std::cerr << text << '\n';
  return EXIT_FAILURE;
}

int check(const std::string& path, const Bytes& bytes, const LibraryVersions& versions) {
  const MachLibrary library = readMachLibrary(io::ByteView(bytes));
  const auto refusals = refusalsOf({library, versions});
  for (const auto& [rule, reason] : refusals)
    std::cerr << path << ": " << rule << ": " << reason << '\n';
  return refusals.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) return complain("usage: check_loading LIBRARY VERSIONS");
  const auto bytes = readFileBytes(arguments[1]);
  if (!bytes) return complain(bytes.error().reason);
  const auto versions = readLibraryVersions(arguments[2]);
  if (!versions) return complain(versions.error().reason);
  return check(arguments[1], *bytes, *versions);
}
