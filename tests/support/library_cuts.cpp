// SPDX-License-Identifier: MIT
#include "tests/support/library_cuts.h"

#include <elf.h>
#include <link.h>

#include <cstring>

namespace support {

namespace {

template <typename Record>
Record recordAt(std::string_view bytes, std::size_t offset) {
  Record record{};
  std::memcpy(&record, bytes.substr(offset, sizeof(Record)).data(), sizeof(Record));
  return record;
}

}  // namespace

std::set<std::size_t> cutsOfLibrary(std::string_view library) {
  std::set<std::size_t> places{0, SELFMAG, EI_NIDENT, sizeof(ElfW(Ehdr)), library.size()};
  const auto header = recordAt<ElfW(Ehdr)>(library, 0);
  for (std::size_t row = 0; row < header.e_phnum; ++row) {
    const std::size_t place = header.e_phoff + row * sizeof(ElfW(Phdr));
    const auto segment = recordAt<ElfW(Phdr)>(library, place);
    places.insert({place, segment.p_offset, segment.p_offset + segment.p_filesz});
  }
  for (std::size_t row = 0; row < header.e_shnum; ++row) {
    const std::size_t place = header.e_shoff + row * sizeof(ElfW(Shdr));
    places.insert({place, recordAt<ElfW(Shdr)>(library, place).sh_offset});
  }
  std::set<std::size_t> cuts;
  for (const std::size_t place : places)
    for (const std::size_t cut : {place - 1, place, place + 1})
      if (cut < library.size()) cuts.insert(cut);
  return cuts;
}

}  // namespace support
