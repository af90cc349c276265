// SPDX-License-Identifier: MIT
#include "io/iso_box.h"

#include <algorithm>

namespace io {

namespace {

constexpr model::FourCharCode uuidType = model::fourCharCode("uuid");

// Sizes as a box header states them, before they are held against the range.
struct Header {
  std::uint64_t headerSize;
  std::uint64_t boxSize;
};

std::optional<Header> headerOf(ByteView bytes, std::uint64_t sizeOfRest) {
  const auto size = bytes.u32(0, ByteOrder::big);
  const auto type = bytes.u32(4, ByteOrder::big);
  if (!size || !type) return std::nullopt;
  Header header{8, *size};
  if (*size == 0) header.boxSize = sizeOfRest;
  if (*size == 1) {
    const auto wide = bytes.u64(8, ByteOrder::big);
    if (!wide) return std::nullopt;
    header = {16, *wide};
  }
  if (*type == uuidType) header.headerSize += 16;
  if (header.boxSize < header.headerSize || sizeOfRest < header.headerSize) return std::nullopt;
  return header;
}

}  // namespace

IsoBoxWalk::IsoBoxWalk(SourceReader& reader, ByteRange range, SourceReader::ReadAhead ahead)
    : _reader(reader), _rest(range), _ahead(ahead) {
  _rest.end = std::min(_rest.end, reader.size());
  _rest.begin = std::min(_rest.begin, _rest.end);
}

std::optional<IsoBox> IsoBoxWalk::next() {
  if (_rest.size() < 8 || _count == largestCount) return std::nullopt;
  const ByteView bytes =
      _reader.upTo(_rest.begin, std::min<std::uint64_t>(_rest.size(), 16), _ahead);
  const auto header = headerOf(bytes, _rest.size());
  if (!header) return std::nullopt;
  IsoBox box;
  box.type = bytes.u32(4, ByteOrder::big).value_or(0);
  box.offset = _rest.begin;
  box.isCut = header->boxSize > _rest.size();
  box.payload.begin = _rest.begin + header->headerSize;
  box.payload.end = _rest.begin + std::min(header->boxSize, _rest.size());
  if (box.type == uuidType) {
    const auto uuid = _reader.view(box.payload.begin - 16, 16, _ahead);
    if (!uuid) return std::nullopt;
    std::ranges::copy(uuid->bytes(), box.uuid.begin());
  }
  _rest.begin = box.payload.end;
  ++_count;
  return box;
}

std::optional<IsoBox> findBox(SourceReader& reader, ByteRange range, model::FourCharCode type,
                              SourceReader::ReadAhead ahead) {
  IsoBoxWalk walk(reader, range, ahead);
  while (const auto box = walk.next()) {
    if (box->type == type) return box;
  }
  return std::nullopt;
}

ByteRange fullBoxBody(const IsoBox& box) {
  return {std::min(box.payload.begin + 4, box.payload.end), box.payload.end};
}

std::optional<ByteView> boxBytes(SourceReader& reader, const IsoBox& box, std::uint64_t longest) {
  if (box.isCut || box.payload.size() > longest) return std::nullopt;
  return reader.view(box.payload.begin, box.payload.size());
}

}  // namespace io
