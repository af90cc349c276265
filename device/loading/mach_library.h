// SPDX-License-Identifier: MIT
//
// What a library for the phone (Mach-O, 64 bits) says of itself in its header and load commands:
// read here, judged by the rules. The names are those of the format's public description.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "io/byte_view.h"

namespace device::loading {

enum class CommandKind : std::uint32_t {
  symbolTable = 0x02,
  dynamicSymbolTable = 0x0B,
  loadLibrary = 0x0C,
  libraryIdentity = 0x0D,
  segment = 0x19,
  uuid = 0x1B,
  codeSignature = 0x1D,
  encryption = 0x21,
  dyldInfo = 0x22,
  minimumOfPhone = 0x25,
  functionStarts = 0x26,
  dataInCode = 0x29,
  encryption64 = 0x2C,
  buildVersion = 0x32,
  loadWeakLibrary = 0x80000018,
  reexportLibrary = 0x8000001F,
  dyldInfoOnly = 0x80000022,
  loadUpwardLibrary = 0x80000023,
  exportsTrie = 0x80000033,
  chainedFixups = 0x80000034,
};

// A load command with its head of eight bytes. Words that it is too short for are zero.
struct Command {
  CommandKind kind;
  io::ByteView bytes;

  std::uint32_t word(std::uint64_t offset) const;
  std::uint64_t longWord(std::uint64_t offset) const;
  // The text from an offset to the zero behind it, in at most so many bytes.
  std::string text(std::uint64_t offset, std::uint64_t length) const;
};

struct Header {
  std::uint32_t magic = 0;
  std::uint32_t processor = 0;
  std::uint32_t subtype = 0;
  std::uint32_t fileType = 0;
  std::uint32_t commandCount = 0;
  std::uint32_t commandsSize = 0;

  static constexpr std::uint32_t size = 32;
};

struct Section {
  std::string name;
  std::uint64_t address = 0;
  std::uint64_t size = 0;
};

struct Segment {
  std::string name;
  std::uint64_t address = 0;
  std::uint64_t size = 0;
  std::uint64_t fileOffset = 0;
  std::uint64_t fileSize = 0;
  std::uint32_t maximalProtection = 0;
  std::uint32_t protection = 0;
  std::vector<Section> sections;
};

// Bits of a segment's protection.
inline constexpr std::uint32_t readable = 1;
inline constexpr std::uint32_t writable = 2;
inline constexpr std::uint32_t executable = 4;

// A library that is needed, and its oldest version that will do, as 16, 8 and 8 bits.
struct Dependency {
  std::string name;
  std::uint32_t compatibility = 0;
};

// A run of bytes of the file that the loader reads: of the link edit segment, where all is well.
struct Table {
  const char* name;
  std::uint64_t offset = 0;
  std::uint64_t size = 0;
};

// Borrows the file's bytes.
struct MachLibrary {
  io::ByteView file;
  Header header;
  std::vector<Command> commands;  // up to the first that does not fit
  std::vector<Segment> segments;
  std::vector<Dependency> dependencies;  // a bind's ordinal counts them from 1

  std::vector<const Command*> all(CommandKind kind) const;
  // The first command of a kind, or null.
  const Command* first(CommandKind kind) const;
  // A table's bytes; empty where they do not lie inside the file.
  io::ByteView bytesOf(const Table& table) const;
};

MachLibrary readMachLibrary(io::ByteView file);

}  // namespace device::loading
