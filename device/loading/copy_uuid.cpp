// SPDX-License-Identifier: MIT
//
// copy_uuid SHIPPED SYMBOLS
// Gives SYMBOLS, the same link with the names of local symbols left in, the UUID of SHIPPED, so
// that a crash report's UUID leads to it: the linker makes a UUID of all bytes, those of the names
// too. A file that maps anything else than SHIPPED does is left alone, with exit status 1.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>

#include "device/loading/file_bytes.h"
#include "device/loading/mach_library.h"

namespace {

using namespace device::loading;

constexpr std::uint64_t uuidSize = 16;

int complain(const std::string& text) {
  std::cerr << text << '\n';
  return EXIT_FAILURE;
}

// The UUID's bytes; empty where there is none.
io::ByteView uuidOf(const MachLibrary& library) {
  const Command* command = library.first(CommandKind::uuid);
  return command ? command->bytes.sub(8, uuidSize).value_or(io::ByteView()) : io::ByteView();
}

// What lies between the load commands and the link edit segment: code and data.
io::ByteView contentOf(const MachLibrary& library) {
  const std::uint64_t begin = std::uint64_t{Header::size} + library.header.commandsSize;
  const std::uint64_t end = library.segments.empty() ? 0 : library.segments.back().fileOffset;
  return end < begin ? io::ByteView()
                     : library.file.sub(begin, end - begin).value_or(io::ByteView());
}

bool haveSameContent(const MachLibrary& one, const MachLibrary& other) {
  return !contentOf(one).isEmpty() &&
         std::ranges::equal(contentOf(one).bytes(), contentOf(other).bytes());
}

bool overwrite(const std::string& path, std::streamoff offset, io::ByteView bytes) {
  std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
  file.seekp(offset) << bytes.text() << std::flush;
  return file.good();
}

int copyUuid(io::ByteView from, io::ByteView to, const std::string& path) {
  const MachLibrary shipped = readMachLibrary(from);
  const MachLibrary symbols = readMachLibrary(to);
  const io::ByteView place = uuidOf(symbols);
  if (place.isEmpty() || uuidOf(shipped).isEmpty()) return complain(path + ": no UUID to copy");
  if (!haveSameContent(shipped, symbols)) return complain(path + ": holds other code");
  const std::streamoff offset = place.bytes().data() - to.bytes().data();
  return overwrite(path, offset, uuidOf(shipped)) ? EXIT_SUCCESS
                                                  : complain(path + ": cannot be written");
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) return complain("usage: copy_uuid SHIPPED SYMBOLS");
  const auto shipped = readFileBytes(arguments[1]);
  const auto symbols = readFileBytes(arguments[2]);
  if (!shipped) return complain(shipped.error().reason);
  if (!symbols) return complain(symbols.error().reason);
  return copyUuid(io::ByteView(*shipped), io::ByteView(*symbols), arguments[2]);
}
