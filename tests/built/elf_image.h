// SPDX-License-Identifier: MIT
//
// A program or library that was built, as its file says. It trusts its input.
#pragma once

#include <elf.h>
#include <link.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace built {

struct Symbol {
  std::string name;  // without the version behind "@"
  ElfW(Sym) entry;
  bool isFunction() const {
    return ELF64_ST_TYPE(entry.st_info) == STT_FUNC && entry.st_value != 0;
  }
};

class ElfImage {
 public:
  explicit ElfImage(const std::string& path);

  ElfW(Half) type() const { return header().e_type; }
  std::vector<ElfW(Phdr)> segments() const;
  // The first segment of the type, or one that is all zeros.
  ElfW(Phdr) segment(ElfW(Word) type) const;
  // The value of a dynamic tag; 0 without.
  std::uint64_t dynamic(ElfW(Sxword) tag) const;
  // All symbols that the file still has, those of the dynamic loader among them.
  std::vector<Symbol> symbols() const;
  // Bytes at an address of the mapped image.
  std::string_view bytesAt(std::uint64_t address, std::size_t count) const;

 private:
  ElfW(Ehdr) header() const;
  std::vector<ElfW(Shdr)> sections() const;

  std::string _bytes;
};

}  // namespace built
