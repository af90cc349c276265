// SPDX-License-Identifier: MIT
#include "media/image/ifd/tiff_ifd.h"

#include <algorithm>

namespace media::image {

namespace {

constexpr std::uint16_t tiffMagic = 42;
constexpr std::uint16_t bigTiffMagic = 43;
constexpr std::uint16_t otherMagics[] = {0x4F52, 0x5352, 0x0055};  // ORF "RO", "RS"; RW2

std::optional<std::uint64_t> unsignedAt(io::ByteView bytes, std::uint64_t offset, std::size_t size,
                                        io::ByteOrder order) {
  switch (size) {
    case 2:
      return bytes.u16(offset, order);
    case 4:
      return bytes.u32(offset, order);
    default:
      return bytes.u64(offset, order);
  }
}

}  // namespace

const IfdEntry* Ifd::find(std::uint16_t tag) const {
  const auto entry = std::find_if(entries.begin(), entries.end(),
                                  [tag](const IfdEntry& one) { return one.tag == tag; });
  return entry == entries.end() ? nullptr : &*entry;
}

std::optional<TiffStructure> TiffStructure::open(io::ByteView block) {
  TiffStructure structure(block, io::ByteOrder::big);
  return structure.readHeader() ? std::optional(structure) : std::nullopt;
}

std::optional<TiffStructure> TiffStructure::open(io::SourceReader& file) {
  TiffStructure structure;
  structure._file = &file;
  return structure.readHeader() ? std::optional(structure) : std::nullopt;
}

bool TiffStructure::readHeader() {
  const auto mark = view(0, 8);
  if (!mark) return false;
  const bool isLittle = mark->startsWith("II");
  if (!isLittle && !mark->startsWith("MM")) return false;
  _order = isLittle ? io::ByteOrder::little : io::ByteOrder::big;
  const std::uint16_t magic = mark->u16(2, _order).value_or(0);
  if (magic == bigTiffMagic) {
    const auto header = view(0, 16);
    if (!header || header->u16(4, _order) != 8) return false;
    _layout = big;
    _firstIfd = header->u64(8, _order).value_or(0);
    return true;
  }
  _firstIfd = mark->u32(4, _order).value_or(0);
  return magic == tiffMagic || std::ranges::find(otherMagics, magic) != std::end(otherMagics);
}

std::optional<io::ByteView> TiffStructure::view(std::uint64_t offset, std::uint64_t length) {
  // Before the block the difference wraps, and so lies behind it.
  return _file ? _file->view(offset, length) : _block.sub(offset - _bytesBefore, length);
}

bool TiffStructure::enter(std::uint64_t offset) {
  const auto visitedEnd = _visited.begin() + static_cast<std::ptrdiff_t>(_visitedCount);
  if (_visitedCount == _visited.size()) return false;
  if (std::find(_visited.begin(), visitedEnd, offset) != visitedEnd) return false;
  _visited[_visitedCount++] = offset;
  return true;
}

std::optional<Ifd> TiffStructure::readIfd(std::uint64_t offset) {
  if (!enter(offset)) return std::nullopt;
  const auto head = view(offset, _layout.countSize);
  if (!head) return std::nullopt;
  const std::uint64_t start = offset + _layout.countSize;
  const std::uint64_t end = _file ? _file->size() : _bytesBefore + _block.size();
  // Where the structure ends among the entries, those before its end still count.
  const std::uint64_t count =
      std::min({unsignedAt(*head, 0, _layout.countSize, _order).value_or(0),
                std::uint64_t{limits.entriesPerIfd}, (end - start) / _layout.entrySize});
  const auto bytes = view(start, count * _layout.entrySize);
  if (!bytes) return std::nullopt;
  Ifd ifd;
  ifd.entries.reserve(static_cast<std::size_t>(count));
  for (std::uint64_t index = 0; index < count; ++index) {
    if (auto entry = parseEntry(bytes->from(index * _layout.entrySize))) {
      ifd.entries.push_back(*entry);
    }
  }
  return ifd;
}

std::optional<IfdEntry> TiffStructure::parseEntry(io::ByteView bytes) const {
  const std::size_t width = _layout.offsetSize;
  const auto tag = bytes.u16(0, _order);
  const auto type = bytes.u16(2, _order);
  const auto count = unsignedAt(bytes, 4, width, _order);
  const auto offset = unsignedAt(bytes, 4 + width, width, _order);
  if (!tag || !type || !count || !offset) return std::nullopt;
  IfdEntry entry{.tag = *tag,
                 .type = static_cast<FieldType>(*type),
                 .count = *count,
                 .offset = *offset,
                 .inlineBytes = {}};
  if (sizeOf(entry.type) == 0) return std::nullopt;
  std::copy_n(bytes.bytes().data() + 4 + width, width, entry.inlineBytes.begin());
  return entry;
}

std::optional<Ifd> TiffStructure::readIfdAt(const IfdEntry* pointer) {
  if (!pointer) return std::nullopt;
  const auto values = field(*pointer);
  const auto offset = values ? values->integer(0) : std::nullopt;
  if (!offset || *offset <= 0) return std::nullopt;
  return readIfd(static_cast<std::uint64_t>(*offset));
}

std::optional<io::ByteView> TiffStructure::valueBytes(const IfdEntry& entry, std::uint64_t length) {
  const std::uint64_t whole = entry.count * sizeOf(entry.type);
  if (whole <= _layout.offsetSize) return io::ByteView(entry.inlineBytes).sub(0, length);
  return view(entry.offset, length);
}

std::optional<TiffField> TiffStructure::field(const IfdEntry& entry) {
  const std::size_t size = sizeOf(entry.type);
  const std::size_t most = size == 1 ? limits.textBytes : limits.valuesPerField;
  if (entry.count > most && size != 1) return std::nullopt;
  const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(entry.count, most));
  const auto bytes = valueBytes(entry, count * size);
  if (!bytes) return std::nullopt;
  return TiffField{.type = entry.type, .order = _order, .count = count, .bytes = *bytes};
}

std::optional<io::ByteView> TiffStructure::block(const IfdEntry* entry) {
  if (!entry || entry->count > limits.embeddedBytes) return std::nullopt;
  return valueBytes(*entry, entry->count * sizeOf(entry->type));
}

}  // namespace media::image
