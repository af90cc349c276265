// SPDX-License-Identifier: MIT
#include <algorithm>
#include <numeric>

#include "device/loading/rules.h"

namespace device::loading::header_rules {
namespace {

constexpr std::uint32_t magic64 = 0xFEEDFACF;
constexpr std::uint32_t arm64 = 0x0100000C;
constexpr std::uint32_t plainArm64 = 0;  // processes of arm64e want another
constexpr std::uint32_t dynamicLibrary = 6;

}  // namespace

Problem kind(const Subject& subject) {
  const Header& header = subject.library.header;
  if (header.magic != magic64) return "no Mach-O file of 64 bits";
  if (header.processor != arm64 || header.subtype != plainArm64) return "not for plain arm64";
  return header.fileType == dynamicLibrary ? "" : "no dynamic library";
}

Problem loadCommands(const Subject& subject) {
  const MachLibrary& library = subject.library;
  const auto& commands = library.commands;
  if (commands.size() != library.header.commandCount) return "a command does not fit the file";
  const auto isOdd = [](const Command& command) { return command.bytes.size() % 8 != 0; };
  if (std::ranges::any_of(commands, isOdd)) return "a command's size is no multiple of 8";
  const auto size = std::accumulate(
      commands.begin(), commands.end(), std::size_t{0},
      [](std::size_t sum, const Command& command) { return sum + command.bytes.size(); });
  return size == library.header.commandsSize ? "" : "the commands do not fill their stated size";
}

}  // namespace device::loading::header_rules
