// SPDX-License-Identifier: MIT
#include "device/loading/link_edit_tables.h"
#include "device/loading/rules.h"

namespace device::loading::link_edit_rules {
namespace {

bool liesIn(const Table& table, const Segment& segment) {
  return table.offset >= segment.fileOffset &&
         table.offset + table.size <= segment.fileOffset + segment.fileSize;
}

}  // namespace

Problem form(const Subject& subject) {
  const MachLibrary& library = subject.library;
  const auto count = [&](CommandKind kind) { return library.all(kind).size(); };
  if (count(CommandKind::dyldInfo) + count(CommandKind::dyldInfoOnly) != 1)
    return "there is not one command of loader information";
  if (count(CommandKind::chainedFixups) + count(CommandKind::exportsTrie) != 0)
    return "there is loader information of a newer form";
  const bool hasSymbols =
      count(CommandKind::symbolTable) == 1 && count(CommandKind::dynamicSymbolTable) == 1;
  return hasSymbols ? "" : "there is not one symbol table";
}

Problem place(const Subject& subject) {
  const MachLibrary& library = subject.library;
  for (const Table& table : linkEditTables(library))
    if (library.segments.empty() || !liesIn(table, library.segments.back()))
      return std::string(table.name) + " do not lie in the last segment";
  return {};
}

Problem order(const Subject& subject) {
  std::uint64_t end = 0;
  for (const Table& table : linkEditTables(subject.library)) {
    if (table.offset < end) return std::string(table.name) + " lie before or over another table";
    end = table.offset + table.size;
  }
  return {};
}

Problem alignment(const Subject& subject) {
  for (const Table& table : linkEditTables(subject.library))
    if (table.offset % 8 != 0) return std::string(table.name) + " do not begin at 8 bytes";
  return {};
}

}  // namespace device::loading::link_edit_rules
