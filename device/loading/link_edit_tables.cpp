// SPDX-License-Identifier: MIT
#include "device/loading/link_edit_tables.h"

namespace device::loading {
namespace {

constexpr std::uint64_t symbolSize = 16;
constexpr std::uint64_t indexSize = 4;

// A table whose offset stands at a place of a command, its count of entries right behind it.
Table tableAt(const char* name, const Command* command, std::uint64_t at,
              std::uint64_t entrySize = 1) {
  if (command == nullptr) return {.name = name};
  return {name, command->word(at), command->word(at + 4) * entrySize};
}

Table dyldTable(const char* name, const MachLibrary& library, std::uint64_t at) {
  const Command* only = library.first(CommandKind::dyldInfoOnly);
  return tableAt(name, only ? only : library.first(CommandKind::dyldInfo), at);
}

}  // namespace

Table rebaseTable(const MachLibrary& library) {
  return dyldTable("rebases", library, 8);
}

Table bindTable(const MachLibrary& library) {
  return dyldTable("binds", library, 16);
}

Table weakBindTable(const MachLibrary& library) {
  return dyldTable("weak binds", library, 24);
}

Table lazyBindTable(const MachLibrary& library) {
  return dyldTable("lazy binds", library, 32);
}

Table signatureTable(const MachLibrary& library) {
  return tableAt("code signature", library.first(CommandKind::codeSignature), 8);
}

std::vector<Table> linkEditTables(const MachLibrary& library) {
  const Command* symbols = library.first(CommandKind::symbolTable);
  std::vector<Table> tables = {
      rebaseTable(library),
      bindTable(library),
      weakBindTable(library),
      lazyBindTable(library),
      dyldTable("exports", library, 40),
      tableAt("function starts", library.first(CommandKind::functionStarts), 8),
      tableAt("data in code", library.first(CommandKind::dataInCode), 8),
      tableAt("symbols", symbols, 8, symbolSize),
      tableAt("indirect symbols", library.first(CommandKind::dynamicSymbolTable), 56, indexSize),
      tableAt("strings", symbols, 16),
      signatureTable(library),
  };
  std::erase_if(tables, [](const Table& table) { return table.size == 0; });
  return tables;
}

}  // namespace device::loading
