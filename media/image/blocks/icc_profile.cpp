// SPDX-License-Identifier: MIT
#include "media/image/blocks/icc_profile.h"

#include <algorithm>
#include <string_view>

#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "model/media_asset.h"
#include "model/utf8.h"

namespace media::image {

namespace {

constexpr std::uint64_t headerSize = 128;
constexpr std::uint32_t descriptionTag = model::fourCharCode("desc");

std::optional<std::string> nameUnlessEmpty(std::string name) {
  while (!name.empty() && (name.back() == '\0' || name.back() == ' ')) name.pop_back();
  if (name.empty()) return std::nullopt;
  return name;
}

std::string utf16Text(io::ByteView bytes) {
  std::u16string units;
  for (std::size_t offset = 0; offset + 1 < bytes.size(); offset += 2) {
    const char16_t unit = bytes.u16(offset, io::ByteOrder::big).value_or(0);
    if (unit == 0) break;
    units.push_back(unit);
  }
  return model::utf16ToUtf8(units);
}

// Version 2: an ASCII text, a Unicode one behind it. ICC.1:2001, 6.5.17.
std::optional<std::string> textDescription(io::ByteView tag) {
  const std::uint32_t length = tag.u32(8, io::ByteOrder::big).value_or(0);
  const std::string_view text = tag.from(12).text().substr(0, length);
  if (auto name = nameUnlessEmpty(model::utf8OrLatin1(text.substr(0, text.find('\0'))))) {
    return name;
  }
  const std::uint64_t unicode = 12 + std::uint64_t{length};
  const std::uint64_t units = tag.u32(unicode + 4, io::ByteOrder::big).value_or(0);
  const auto bytes = tag.sub(unicode + 8, units * 2);
  return bytes ? nameUnlessEmpty(utf16Text(*bytes)) : std::nullopt;
}

// Version 4: one text a language, in UTF-16; English where there is any. ICC.1:2010, 10.13.
std::optional<std::string> localizedText(io::ByteView tag) {
  const std::uint32_t count = tag.u32(8, io::ByteOrder::big).value_or(0);
  constexpr std::uint64_t recordSize = 12;
  std::optional<std::string> found;
  for (std::uint64_t index = 0; index < std::min<std::uint64_t>(count, limits.iccTags); ++index) {
    const auto record = tag.sub(16 + index * recordSize, recordSize);
    if (!record) break;
    const bool isEnglish = record->startsWith("en");
    if (found && !isEnglish) continue;
    const auto text = tag.sub(record->u32(8, io::ByteOrder::big).value_or(0),
                              record->u32(4, io::ByteOrder::big).value_or(0));
    if (auto name = text ? nameUnlessEmpty(utf16Text(*text)) : std::nullopt) found = name;
    if (found && isEnglish) break;
  }
  return found;
}

std::optional<std::string> descriptionText(io::ByteView tag) {
  if (tag.startsWith("mluc")) return localizedText(tag);
  if (tag.startsWith("desc")) return textDescription(tag);
  return std::nullopt;
}

}  // namespace

std::optional<std::string> iccProfileName(const BlockReader& profile) {
  const auto header = profile(0, headerSize + 4);
  if (!header) return std::nullopt;
  const std::uint64_t count = header->u32(headerSize, io::ByteOrder::big).value_or(0);
  constexpr std::uint64_t rowSize = 12;
  const auto table =
      profile(headerSize + 4, std::min<std::uint64_t>(count, limits.iccTags) * rowSize);
  if (!table) return std::nullopt;
  for (std::uint64_t row = 0; row < table->size(); row += rowSize) {
    if (table->u32(row, io::ByteOrder::big) != descriptionTag) continue;
    const std::uint64_t offset = table->u32(row + 4, io::ByteOrder::big).value_or(0);
    const std::uint64_t size = table->u32(row + 8, io::ByteOrder::big).value_or(0);
    const auto tag = profile(offset, std::min<std::uint64_t>(size, limits.textBytes));
    return tag ? descriptionText(*tag) : std::nullopt;
  }
  return std::nullopt;
}

std::optional<std::string> iccProfileName(io::ByteView profile) {
  return iccProfileName([profile](std::uint64_t offset, std::uint64_t length) {
    return profile.sub(offset, length);
  });
}

}  // namespace media::image
