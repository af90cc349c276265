// SPDX-License-Identifier: MIT
#include "tests/device/emulated/mach_recipe.h"

#include <algorithm>
#include <string_view>

namespace device::emulated {
namespace {

constexpr std::size_t headerSize = 32;    // bytes
constexpr std::size_t linkEdit = 0x8000;  // where in the file the loader's programs begin
constexpr std::size_t fileSize = 0x9000;

class Writer {
 public:
  Writer& u32(std::uint64_t value) { return put(value, 4); }
  Writer& u64(std::uint64_t value) { return put(value, 8); }
  Writer& text(std::string_view characters, std::size_t width) {
    bytes.insert(bytes.end(), characters.begin(), characters.end());
    bytes.resize(bytes.size() + width - characters.size());
    return *this;
  }

  Bytes bytes;

 private:
  Writer& put(std::uint64_t value, int width) {
    for (int byte = 0; byte < width; ++byte)
      bytes.push_back(static_cast<std::uint8_t>(value >> (8 * byte)));
    return *this;
  }
};

// Load commands, each with its kind and size before it.
struct Commands {
  Bytes bytes;
  std::uint32_t count = 0;

  void add(std::uint32_t kind, const Writer& content) {
    const Bytes head = Writer().u32(kind).u32(8 + content.bytes.size()).bytes;
    bytes.insert(bytes.end(), head.begin(), head.end());
    bytes.insert(bytes.end(), content.bytes.begin(), content.bytes.end());
    ++count;
  }
};

Writer segmentCommand(const loading::Segment& segment) {
  Writer writer;
  writer.text(segment.name, 16).u64(segment.address).u64(segment.size);
  writer.u64(segment.fileOffset).u64(segment.fileSize);
  return writer.u32(segment.protection).u32(segment.protection).u32(0).u32(0);
}

// Puts the loader's programs behind each other; the command says where.
Writer programsCommand(const MachRecipe& recipe, Bytes& programs) {
  Writer writer;
  for (const Bytes& program : {recipe.rebases, recipe.bindings, Bytes(), recipe.lazyBindings}) {
    writer.u32(linkEdit + programs.size()).u32(program.size());
    programs.insert(programs.end(), program.begin(), program.end());
  }
  return writer.u32(0).u32(0);
}

}  // namespace

Bytes MachRecipe::build() const {
  Commands commands;
  for (const loading::Segment& segment : segments) commands.add(0x19, segmentCommand(segment));
  Bytes programs;
  commands.add(0x8000'0022, programsCommand(*this, programs));
  Writer header;
  header.u32(0xFEED'FACF).u32(0x0100'000C).u32(0).u32(6).u32(commands.count);
  header.u32(commands.bytes.size()).u32(0).u32(0);
  Bytes bytes(fileSize);
  std::ranges::copy(header.bytes, bytes.begin());
  std::ranges::copy(commands.bytes, bytes.begin() + headerSize);
  std::ranges::copy(data, bytes.begin() + 0x4000);
  std::ranges::copy(programs, bytes.begin() + linkEdit);
  return bytes;
}

}  // namespace device::emulated
