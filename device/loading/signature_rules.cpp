// SPDX-License-Identifier: MIT
//
// A code signature is a list of blobs, of which the code directory is the one that counts here: a
// hash of each page of all that lies before the signature. Its numbers are big-endian.
#include <openssl/sha.h>

#include <algorithm>
#include <array>

#include "device/loading/link_edit_tables.h"
#include "device/loading/rules.h"

namespace device::loading::signature_rules {
namespace {

constexpr std::uint32_t listMagic = 0xFADE0CC0;
constexpr std::uint32_t directoryMagic = 0xFADE0C02;
constexpr std::uint8_t sha256Kind = 2;
constexpr std::uint64_t sha256Size = 32;
constexpr std::uint8_t pageBits = 12;
constexpr std::uint64_t pageSize = 1 << pageBits;

std::uint32_t wordOf(io::ByteView bytes, std::uint64_t offset) {
  return bytes.u32(offset, io::ByteOrder::big).value_or(0);
}

// The code directory's bytes; empty where the signature is none. It is the list's first blob.
io::ByteView directoryOf(const MachLibrary& library) {
  const io::ByteView list = library.bytesOf(signatureTable(library));
  const io::ByteView directory = list.from(wordOf(list, 16));
  const bool isSound = wordOf(list, 0) == listMagic && wordOf(list, 8) > 0 &&
                       wordOf(list, 12) == 0 && wordOf(directory, 0) == directoryMagic;
  return isSound ? directory : io::ByteView();
}

std::uint64_t pageCount(std::uint64_t size) {
  return (size + pageSize - 1) / pageSize;
}

bool isHashedBySha256(io::ByteView directory) {
  return directory.u8(36) == sha256Size && directory.u8(37) == sha256Kind &&
         directory.u8(39) == pageBits;
}

bool isHashOf(io::ByteView stated, io::ByteView page) {
  std::array<std::uint8_t, sha256Size> hash{};
  SHA256(page.bytes().data(), page.bytes().size(), hash.data());
  return std::ranges::equal(stated.bytes(), hash);
}

}  // namespace

Problem place(const Subject& subject) {
  const Table signature = signatureTable(subject.library);
  if (signature.size == 0) return "it is not signed";
  if (signature.offset % 16 != 0) return "it does not begin at 16 bytes";
  return signature.offset + signature.size == subject.library.file.size()
             ? ""
             : "it is not the last of the file";
}

Problem directory(const Subject& subject) {
  const io::ByteView directory = directoryOf(subject.library);
  if (directory.isEmpty()) return "there is no code directory";
  if (!isHashedBySha256(directory)) return "pages are not hashed as SHA-256 of 4096 bytes";
  const std::uint64_t covered = signatureTable(subject.library).offset;
  return wordOf(directory, 32) == covered && wordOf(directory, 28) == pageCount(covered)
             ? ""
             : "it does not cover all that lies before it";
}

Problem hashes(const Subject& subject) {
  const io::ByteView directory = directoryOf(subject.library);
  const io::ByteView file = subject.library.file;
  const std::uint64_t size = signatureTable(subject.library).offset;
  for (std::uint64_t page = 0; page < pageCount(size); ++page) {
    const std::uint64_t begin = page * pageSize;
    const auto bytes = file.sub(begin, std::min(pageSize, size - begin));
    const auto stated = directory.sub(wordOf(directory, 16) + page * sha256Size, sha256Size);
    if (!bytes || !stated || !isHashOf(*stated, *bytes))
      return "page " + std::to_string(page) + " has another hash";
  }
  return {};
}

}  // namespace device::loading::signature_rules
