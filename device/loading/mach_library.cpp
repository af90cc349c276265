// SPDX-License-Identifier: MIT
#include "device/loading/mach_library.h"

namespace device::loading {
namespace {

constexpr std::uint32_t commandHead = 8;
constexpr std::uint32_t segmentSize = 72;
constexpr std::uint32_t sectionSize = 80;
constexpr std::uint32_t nameSize = 16;

std::uint32_t wordOf(io::ByteView bytes, std::uint64_t offset) {
  return bytes.u32(offset, io::ByteOrder::little).value_or(0);
}

Header readHeader(io::ByteView file) {
  return {.magic = wordOf(file, 0),
          .processor = wordOf(file, 4),
          .subtype = wordOf(file, 8),
          .fileType = wordOf(file, 12),
          .commandCount = wordOf(file, 16),
          .commandsSize = wordOf(file, 20)};
}

std::vector<Command> readCommands(io::ByteView file, const Header& header) {
  std::vector<Command> commands;
  std::uint64_t offset = Header::size;
  while (commands.size() < header.commandCount) {
    const std::uint32_t size = wordOf(file, offset + 4);
    const auto bytes = file.sub(offset, size);
    if (!bytes || size < commandHead) break;
    commands.push_back({static_cast<CommandKind>(wordOf(file, offset)), *bytes});
    offset += size;
  }
  return commands;
}

std::vector<Section> readSections(const Command& command) {
  std::vector<Section> sections;
  const std::uint32_t count = command.word(64);
  for (std::uint64_t at = segmentSize;
       sections.size() < count && command.bytes.contains(at, sectionSize); at += sectionSize)
    sections.push_back({.name = command.text(at, nameSize),
                        .address = command.longWord(at + 32),
                        .size = command.longWord(at + 40)});
  return sections;
}

Segment readSegment(const Command& command) {
  return {.name = command.text(8, nameSize),
          .address = command.longWord(24),
          .size = command.longWord(32),
          .fileOffset = command.longWord(40),
          .fileSize = command.longWord(48),
          .maximalProtection = command.word(56),
          .protection = command.word(60),
          .sections = readSections(command)};
}

Dependency readDependency(const Command& command) {
  return {.name = command.text(command.word(8), command.bytes.size()),
          .compatibility = command.word(20)};
}

bool isDependency(CommandKind kind) {
  return kind == CommandKind::loadLibrary || kind == CommandKind::loadWeakLibrary ||
         kind == CommandKind::reexportLibrary || kind == CommandKind::loadUpwardLibrary;
}

}  // namespace

std::uint32_t Command::word(std::uint64_t offset) const {
  return wordOf(bytes, offset);
}

std::uint64_t Command::longWord(std::uint64_t offset) const {
  return bytes.u64(offset, io::ByteOrder::little).value_or(0);
}

std::string Command::text(std::uint64_t offset, std::uint64_t length) const {
  const std::string_view rest = bytes.from(offset).text().substr(0, length);
  return std::string(rest.substr(0, rest.find('\0')));
}

std::vector<const Command*> MachLibrary::all(CommandKind kind) const {
  std::vector<const Command*> found;
  for (const Command& command : commands)
    if (command.kind == kind) found.push_back(&command);
  return found;
}

const Command* MachLibrary::first(CommandKind kind) const {
  const auto found = all(kind);
  return found.empty() ? nullptr : found.front();
}

io::ByteView MachLibrary::bytesOf(const Table& table) const {
  return file.sub(table.offset, table.size).value_or(io::ByteView());
}

MachLibrary readMachLibrary(io::ByteView file) {
  MachLibrary library;
  library.file = file;
  library.header = readHeader(file);
  library.commands = readCommands(file, library.header);
  for (const Command& command : library.commands) {
    if (command.kind == CommandKind::segment) library.segments.push_back(readSegment(command));
    if (isDependency(command.kind)) library.dependencies.push_back(readDependency(command));
  }
  return library;
}

}  // namespace device::loading
