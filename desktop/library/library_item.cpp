// SPDX-License-Identifier: MIT
#include "desktop/library/library_item.h"

#include "model/utf8.h"

namespace desktop::library {

namespace {

// FNV-1a of 64 bits from two starting points, each mixed at the end so that near paths differ in
// all digits.
std::uint64_t hashOf(std::string_view bytes, std::uint64_t hash) {
  for (const char byte : bytes) {
    hash = (hash ^ static_cast<std::uint8_t>(byte)) * 0x100000001B3U;
  }
  hash = (hash ^ (hash >> 33)) * 0xFF51AFD7ED558CCDU;
  hash = (hash ^ (hash >> 33)) * 0xC4CEB9FE1A85EC53U;
  return hash ^ (hash >> 33);
}

void appendHex(std::string& text, std::uint64_t number) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  for (int shift = 60; shift >= 0; shift -= 4) text += digits[(number >> shift) & 15];
}

}  // namespace

std::string_view LibraryItem::name() const {
  return std::string_view(path).substr(path.rfind('/') + 1);
}

std::string LibraryItem::shownName() const {
  return model::replacingInvalidUtf8(name());
}

std::string_view LibraryItem::folder() const {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return {};
  return std::string_view(path).substr(0, slash == 0 ? 1 : slash);
}

bool comesBefore(const ItemPointer& left, const ItemPointer& right) {
  const double leftDate = left->modificationDate.secondsSince1970;
  const double rightDate = right->modificationDate.secondsSince1970;
  return leftDate != rightDate ? leftDate < rightDate : left->path < right->path;
}

std::string itemUuid(std::string_view path) {
  std::string text;
  appendHex(text, hashOf(path, 0xCBF29CE484222325U));
  appendHex(text, hashOf(path, 0x9AE16A3B2F90404FU));
  text[12] = '8';                                          // the version
  text[16] = "89AB"[static_cast<unsigned>(text[16]) & 3];  // the variant
  for (const std::size_t dash : {8U, 13U, 18U, 23U}) text.insert(dash, 1, '-');
  return text;
}

}  // namespace desktop::library
