// SPDX-License-Identifier: MIT
//
// https://refspecs.linuxfoundation.org/elf/gabi4+/contents.html
#include "io/library_file.h"

#include <elf.h>
#include <link.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <string_view>
#include <vector>

#include "io/byte_view.h"

namespace io {

namespace {

using ElfHeader = ElfW(Ehdr);
using Segment = ElfW(Phdr);
using ElfNote = ElfW(Nhdr);

constexpr std::uint64_t longestNotes = 64 << 10;  // bytes of one segment of notes
constexpr unsigned char wordSize = sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32;
constexpr unsigned char byteOrder =
    std::endian::native == std::endian::little ? ELFDATA2LSB : ELFDATA2MSB;

model::Error noLibrary() {
  return {"no shared library"};
}

model::Error cutOff() {
  return {"a shared library that is cut off"};
}

bool contains(const ByteSource& source, std::uint64_t offset, std::uint64_t length) {
  return offset <= source.size() && length <= source.size() - offset;
}

// Values that stand in the file as they do in memory.
template <typename Record>
model::Result<std::vector<Record>> readRecords(ByteSource& source, std::uint64_t offset,
                                               std::size_t count) {
  if (!contains(source, offset, std::uint64_t{count} * sizeof(Record))) return cutOff();
  std::vector<Record> records(count);
  const std::span into(reinterpret_cast<std::uint8_t*>(records.data()), count * sizeof(Record));
  const auto done = source.readAt(offset, into);
  if (!done) return done.error();
  if (*done < into.size()) return cutOff();
  return records;
}

model::Result<ElfHeader> readHeader(ByteSource& source) {
  const auto magic = readRecords<std::uint8_t>(source, 0, SELFMAG);
  if (!magic || std::memcmp(magic->data(), ELFMAG, SELFMAG) != 0) return noLibrary();
  const auto headers = readRecords<ElfHeader>(source, 0, 1);
  if (!headers) return headers.error();
  const ElfHeader& header = headers->front();
  if (header.e_ident[EI_CLASS] != wordSize || header.e_ident[EI_DATA] != byteOrder)
    return model::Error{"a shared library for another system"};
  if (header.e_type != ET_DYN || header.e_phentsize != sizeof(Segment) || header.e_phnum == 0)
    return noLibrary();
  return header;
}

// What is mapped of the file, and the table of sections, which stands behind all that: nothing
// reads it, but where it is missing something was cut off.
bool isWhole(const ByteSource& source, const ElfHeader& header,
             const std::vector<Segment>& segments) {
  const std::uint64_t sections = std::uint64_t{header.e_shnum} * header.e_shentsize;
  return contains(source, header.e_shoff, sections) &&
         std::ranges::all_of(segments, [&](const Segment& segment) {
           return contains(source, segment.p_offset, segment.p_filesz);
         });
}

std::uint64_t padded(std::uint64_t length) {
  return (length + 3) & ~std::uint64_t{3};
}

// The description of the first note of that name.
std::optional<std::string> descriptionOf(std::string_view name, ByteView notes) {
  while (!notes.isEmpty()) {
    const auto head = notes.sub(0, sizeof(ElfNote));
    if (!head) return std::nullopt;
    ElfNote note{};
    std::memcpy(&note, head->bytes().data(), sizeof(ElfNote));
    const auto noteName = notes.sub(sizeof(ElfNote), note.n_namesz);
    const auto description = notes.sub(sizeof(ElfNote) + padded(note.n_namesz), note.n_descsz);
    if (!noteName || !description) return std::nullopt;
    if (noteName->text() == name) return std::string(description->text());
    notes = notes.from(sizeof(ElfNote) + padded(note.n_namesz) + padded(note.n_descsz));
  }
  return std::nullopt;
}

// As the template of every module writes it, with the zero at its end.
std::optional<std::string> moduleVersionIn(ByteSource& source, const Segment& segment) {
  using namespace std::string_view_literals;
  if (segment.p_type != PT_NOTE || segment.p_filesz > longestNotes) return std::nullopt;
  const auto bytes = readRecords<std::uint8_t>(source, segment.p_offset, segment.p_filesz);
  if (!bytes) return std::nullopt;
  auto version = descriptionOf("desktop-module\0"sv, ByteView(*bytes));
  if (version) version->resize(std::min(version->find('\0'), version->size()));
  return version;
}

}  // namespace

model::Result<LibraryFacts> readLibraryFacts(ByteSource& source) {
  const auto header = readHeader(source);
  if (!header) return header.error();
  const auto segments = readRecords<Segment>(source, header->e_phoff, header->e_phnum);
  if (!segments) return segments.error();
  if (!isWhole(source, *header, *segments)) return cutOff();
  LibraryFacts facts;
  for (const Segment& segment : *segments)
    if (!facts.moduleVersion) facts.moduleVersion = moduleVersionIn(source, segment);
  return facts;
}

model::Result<LibraryFacts> readLibraryFacts(const std::string& path) {
  const auto file = FileSource::open(path);
  if (!file) return file.error();
  return readLibraryFacts(**file);
}

}  // namespace io
