// SPDX-License-Identifier: MIT
#include "device/emulated/mapped_image.h"

#include <sys/mman.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>

#include "device/loading/fixups.h"
#include "device/loading/link_edit_tables.h"

namespace device::emulated {
namespace {

using namespace loading;

using Memory = std::span<std::uint8_t>;
using Failure = std::optional<model::Error>;

constexpr std::uint64_t largestImage = 64ULL << 20;  // bytes; far beyond any extension

model::Error systemError() {
  return {std::strerror(errno)};
}

model::Result<Memory> reserve(const MachLibrary& library) {
  std::uint64_t size = 0;
  for (const Segment& segment : library.segments)
    size = std::max(size, segment.address + segment.size);
  if (size > largestImage) return model::Error{"its addresses reach too far"};
  void* memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) return systemError();
  return Memory(static_cast<std::uint8_t*>(memory), size);
}

void copySegments(const MachLibrary& library, Memory memory) {
  for (const Segment& segment : library.segments) {
    const auto bytes = library.file.bytes().subspan(segment.fileOffset, segment.fileSize);
    std::ranges::copy(bytes, memory.subspan(segment.address).begin());
  }
}

std::uint8_t* at(const MachLibrary& library, Memory memory, Place place) {
  return &memory[library.segments[place.segment].address + place.offset];
}

std::uint64_t placeOf(const void* pointer) {
  return reinterpret_cast<std::uint64_t>(pointer);
}

Failure rebase(const MachLibrary& library, Memory memory) {
  const auto rebases = readRebases(library.bytesOf(rebaseTable(library)));
  if (!rebases) return rebases.error();
  for (const Place place : *rebases) {
    std::uint64_t pointer = 0;
    std::memcpy(&pointer, at(library, memory, place), sizeof pointer);
    pointer += placeOf(memory.data());
    std::memcpy(at(library, memory, place), &pointer, sizeof pointer);
  }
  return std::nullopt;
}

// Completes the pointers; names what is missing.
std::string bindAll(const MachLibrary& library, Memory memory, const std::vector<Bind>& binds,
                    const SymbolLookup& symbol) {
  std::string missing;
  for (const Bind& bind : binds) {
    const void* found = symbol(bind.symbol);
    if (!found && !bind.isWeak) missing += " " + bind.symbol;
    const std::uint64_t pointer = placeOf(found) + static_cast<std::uint64_t>(bind.addend);
    std::memcpy(at(library, memory, bind.place), &pointer, sizeof pointer);
  }
  return missing;
}

// What the phone binds at a first call is bound at once, which nobody can tell apart.
Failure bind(const MachLibrary& library, Memory memory, const SymbolLookup& symbol) {
  const std::pair<Table, BindTime> programs[] = {{bindTable(library), BindTime::atOnce},
                                                 {lazyBindTable(library), BindTime::atFirstCall}};
  std::string missing;
  for (const auto& [table, time] : programs) {
    const auto binds = readBinds(library.bytesOf(table), time);
    if (!binds) return binds.error();
    missing += bindAll(library, memory, *binds, symbol);
  }
  if (!missing.empty()) return model::Error{"nobody has" + missing};
  return std::nullopt;
}

int systemProtection(const Segment& segment) {
  return (segment.protection & readable ? PROT_READ : 0) |
         (segment.protection & writable ? PROT_WRITE : 0) |
         (segment.protection & executable ? PROT_EXEC : 0);
}

Failure protect(const MachLibrary& library, Memory memory) {
  auto* begin = reinterpret_cast<char*>(memory.data());
  __builtin___clear_cache(begin, begin + memory.size());
  for (const Segment& segment : library.segments)
    if (mprotect(&begin[segment.address], segment.size, systemProtection(segment)) != 0)
      return systemError();
  return std::nullopt;
}

}  // namespace

model::Result<std::span<std::uint8_t>> mapImage(const loading::MachLibrary& library,
                                                const SymbolLookup& symbol) {
  const model::Result<Memory> memory = reserve(library);
  if (!memory) return memory.error();
  copySegments(library, *memory);
  if (const Failure failed = rebase(library, *memory)) return *failed;
  if (const Failure failed = bind(library, *memory, symbol)) return *failed;
  if (const Failure failed = protect(library, *memory)) return *failed;
  return *memory;
}

}  // namespace device::emulated
