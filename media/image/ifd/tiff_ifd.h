// SPDX-License-Identifier: MIT
//
// The image file directories (IFDs) of a TIFF structure, in memory or in a file. TIFF 6.0,
// section 2; BigTIFF.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "media/image/blocks/limits.h"
#include "media/image/ifd/tiff_field.h"

namespace media::image {

struct IfdEntry {
  std::uint16_t tag = 0;
  FieldType type = FieldType::undefined;
  std::uint64_t count = 0;                    // as the file claims
  std::uint64_t offset = 0;                   // of the values, where they do not fit in the entry
  std::array<std::uint8_t, 8> inlineBytes{};  // the values, where they do
};

struct Ifd {
  std::vector<IfdEntry> entries;  // in file order; of types that exist

  // The first entry with the tag, or null. Borrowed.
  const IfdEntry* find(std::uint16_t tag) const;
};

// A TIFF structure whose IFDs are read on demand, each at most once, so that a walk along pointers
// that form a circle ends.
class TiffStructure {
 public:
  // A structure with its header: the byte order mark, a magic number and the first IFD's offset.
  // None where the bytes are nothing of the kind. Besides TIFF's own magic number those of ORF
  // and RW2 raw files are taken. REQUIRES: the bytes, or the reader, outlive the structure.
  static std::optional<TiffStructure> open(io::ByteView block);
  static std::optional<TiffStructure> open(io::SourceReader& file);

  // A structure without a header, such as a maker note; its offsets count from as many bytes before
  // the block.
  TiffStructure(io::ByteView block, io::ByteOrder order, std::uint64_t bytesBefore = 0)
      : _block(block), _bytesBefore(bytesBefore), _order(order) {}

  io::ByteOrder order() const { return _order; }
  std::uint64_t firstIfd() const { return _firstIfd; }

  // The IFD at an offset. None where it does not lie in the structure, was read before, or is one
  // more than the limits allow.
  std::optional<Ifd> readIfd(std::uint64_t offset);
  // The IFD that the first value of a pointer entry leads to; none for a null entry as well.
  std::optional<Ifd> readIfdAt(const IfdEntry* pointer);

  // The values of an entry. None where they do not all lie in the structure or are more than the
  // limits allow; texts and untyped bytes are cut at the limit instead. Borrowed: valid until the
  // next call, and as long as the entry.
  std::optional<TiffField> field(const IfdEntry& entry);
  // All bytes of an entry, up to the limit of embedded blocks. None for a null entry as well.
  // Borrowed likewise.
  std::optional<io::ByteView> block(const IfdEntry* entry);

 private:
  // How wide counts and offsets are.
  struct Layout {
    std::uint8_t countSize;   // bytes of the number of entries
    std::uint8_t entrySize;   // bytes of an entry
    std::uint8_t offsetSize;  // bytes of an offset, and of values inside an entry
  };
  static constexpr Layout classic{.countSize = 2, .entrySize = 12, .offsetSize = 4};
  static constexpr Layout big{.countSize = 8, .entrySize = 20, .offsetSize = 8};

  TiffStructure() = default;
  bool readHeader();
  bool enter(std::uint64_t offset);
  std::optional<IfdEntry> parseEntry(io::ByteView bytes) const;
  std::optional<io::ByteView> view(std::uint64_t offset, std::uint64_t length);
  std::optional<io::ByteView> valueBytes(const IfdEntry& entry, std::uint64_t length);

  io::SourceReader* _file = nullptr;  // null: the structure lies in _block
  io::ByteView _block;
  std::uint64_t _bytesBefore = 0;
  io::ByteOrder _order = io::ByteOrder::big;
  Layout _layout = classic;
  std::uint64_t _firstIfd = 0;
  std::array<std::uint64_t, limits.ifdsPerStructure> _visited{};
  std::size_t _visitedCount = 0;
};

}  // namespace media::image
