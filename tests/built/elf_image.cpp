// SPDX-License-Identifier: MIT
#include "tests/built/elf_image.h"

#include <cstring>

#include "tests/support/temporary_folder.h"

namespace built {

namespace {

template <typename Record>
std::vector<Record> recordsAt(std::string_view bytes, std::uint64_t offset, std::size_t count) {
  std::vector<Record> records(count);
  const std::string_view run = bytes.substr(offset, count * sizeof(Record));
  std::memcpy(records.data(), run.data(), run.size());
  return records;
}

}  // namespace

ElfImage::ElfImage(const std::string& path) : _bytes(support::contentsOf(path)) {}

ElfW(Ehdr) ElfImage::header() const {
  return recordsAt<ElfW(Ehdr)>(_bytes, 0, 1).front();
}

std::vector<ElfW(Phdr)> ElfImage::segments() const {
  return recordsAt<ElfW(Phdr)>(_bytes, header().e_phoff, header().e_phnum);
}

std::vector<ElfW(Shdr)> ElfImage::sections() const {
  return recordsAt<ElfW(Shdr)>(_bytes, header().e_shoff, header().e_shnum);
}

ElfW(Phdr) ElfImage::segment(ElfW(Word) type) const {
  for (const auto& segment : segments())
    if (segment.p_type == type) return segment;
  return {};
}

std::uint64_t ElfImage::dynamic(ElfW(Sxword) tag) const {
  const auto table = segment(PT_DYNAMIC);
  const std::size_t count = table.p_filesz / sizeof(ElfW(Dyn));
  for (const auto& entry : recordsAt<ElfW(Dyn)>(_bytes, table.p_offset, count))
    if (entry.d_tag == tag) return entry.d_un.d_val;
  return 0;
}

std::vector<Symbol> ElfImage::symbols() const {
  std::vector<Symbol> found;
  const auto all = sections();
  for (const auto& section : all) {
    if (section.sh_type != SHT_SYMTAB && section.sh_type != SHT_DYNSYM) continue;
    const char* const names = _bytes.data() + all[section.sh_link].sh_offset;
    const std::size_t count = section.sh_size / sizeof(ElfW(Sym));
    for (const auto& entry : recordsAt<ElfW(Sym)>(_bytes, section.sh_offset, count)) {
      const std::string_view name = names + entry.st_name;
      found.push_back({std::string(name.substr(0, name.find('@'))), entry});
    }
  }
  return found;
}

std::string_view ElfImage::bytesAt(std::uint64_t address, std::size_t count) const {
  for (const auto& segment : segments())
    if (segment.p_type == PT_LOAD && address >= segment.p_vaddr &&
        address + count <= segment.p_vaddr + segment.p_filesz)
      return std::string_view(_bytes).substr(segment.p_offset + address - segment.p_vaddr, count);
  return {};
}

}  // namespace built
