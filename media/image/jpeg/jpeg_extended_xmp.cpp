// SPDX-License-Identifier: MIT
#include "media/image/jpeg/jpeg_extended_xmp.h"

#include <algorithm>
#include <string_view>

#include "media/image/blocks/embedded_blocks.h"
#include "media/image/blocks/metadata_blocks.h"

namespace media::image {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view signature = "http://ns.adobe.com/xmp/extension/\0"sv;
constexpr std::size_t digestSize = 32;
constexpr std::size_t headerSize = signature.size() + digestSize + 8;

// The digest that the main packet names, as an attribute or as an element.
std::string_view digestNamedBy(std::string_view packet) {
  constexpr std::string_view property = "HasExtendedXMP";
  const std::size_t found = packet.find(property);
  if (found == std::string_view::npos) return {};
  packet.remove_prefix(found + property.size());
  const std::size_t beforeValue = packet.find_first_of("\"'>");
  return beforeValue == std::string_view::npos ? "" : packet.substr(beforeValue + 1, digestSize);
}

}  // namespace

void ExtendedXmp::take(io::SourceReader& file, io::ByteRange segment) {
  if (segment.size() < headerSize) return;
  const auto header = file.view(segment.begin, headerSize, io::SourceReader::ReadAhead::none);
  if (!header || !header->startsWith(signature)) return;
  const std::string_view digest = header->text().substr(signature.size(), digestSize);
  const std::uint64_t numbers = signature.size() + digestSize;
  _pieces.push_back({std::string(digest),
                     header->u32(numbers, io::ByteOrder::big).value_or(0),
                     header->u32(numbers + 4, io::ByteOrder::big).value_or(0),
                     {segment.begin + headerSize, segment.end}});
}

void ExtendedXmp::read(io::SourceReader& file, SplicedRanges& mainPacket,
                       model::Dictionary& properties) {
  if (_pieces.empty()) return;
  const auto main = mainPacket.all(file);
  const std::string digest(main ? digestNamedBy(main->text()) : "");
  std::erase_if(_pieces, [&](const Piece& piece) { return piece.digest != digest; });
  std::ranges::sort(_pieces, {}, &Piece::offset);
  SplicedRanges packet;
  for (const Piece& piece : _pieces) {
    if (piece.offset == packet.size()) packet.append(piece.bytes);
  }
  if (_pieces.empty() || packet.size() != _pieces.front().fullLength) return;
  if (const auto bytes = wholeBlock(file, packet, properties)) readXmpPacket(*bytes, properties);
}

}  // namespace media::image
