// SPDX-License-Identifier: MIT
//
// The last four bytes of a heap lead to its directory: how many entries, then ten bytes each: a
// code, a size, an offset into the heap. The two highest bits of the code tell where the bytes are:
// in the heap, or in the entry instead of size and offset.
#include "media/image/raw/ciff_heap.h"

#include <algorithm>
#include <vector>

#include "media/image/blocks/limits.h"

namespace media::image {

namespace {

constexpr std::uint64_t entrySize = 10;
constexpr std::uint16_t placeBits = 0xC000;
constexpr std::uint16_t inEntry = 0x4000;
constexpr std::uint16_t typeBits = 0x3800;

bool isHeap(std::uint16_t code) {
  return (code & typeBits) == 0x2800 || (code & typeBits) == 0x3000;
}

struct Heap {
  std::uint16_t code = 0;
  io::ByteRange bytes;
};

class HeapWalk {
 public:
  HeapWalk(io::SourceReader& file, io::ByteOrder order,
           const std::function<void(const CiffRecord&)>& take)
      : _file(file), _order(order), _take(take) {}

  // Whether the heap has a directory. Heaps inside are kept for later.
  bool walk(const Heap& heap) {
    if (heap.bytes.size() < 6) return false;
    const auto place = _file.upTo(heap.bytes.end - 4, 4).u32(0, _order);
    if (!place || *place > heap.bytes.size() - 6) return false;
    const std::uint64_t directory = heap.bytes.begin + *place;
    const auto count = _file.upTo(directory, 2).u16(0, _order);
    if (!count) return false;
    for (std::size_t index = 0; index < std::min<std::size_t>(*count, limits.rawRecords); ++index) {
      const std::uint64_t entry = directory + 2 + index * entrySize;
      if (entry + entrySize > heap.bytes.end) break;
      takeEntry(heap, entry);
    }
    return true;
  }

  void walkRest() {
    for (std::size_t next = 0; next < _heaps.size(); ++next) walk(Heap(_heaps[next]));
  }

 private:
  void takeEntry(const Heap& heap, std::uint64_t entry) {
    const io::ByteView bytes = _file.upTo(entry, entrySize);
    const std::uint16_t code = bytes.u16(0, _order).value_or(0);
    CiffRecord record{
        heap.code, static_cast<std::uint16_t>(code & ~placeBits), {entry + 2, entry + entrySize}};
    if ((code & placeBits) != inEntry) {
      const std::uint64_t size = bytes.u32(2, _order).value_or(0);
      const std::uint64_t offset = bytes.u32(6, _order).value_or(0);
      if (offset > heap.bytes.size() || size > heap.bytes.size() - offset) return;
      record.bytes = {heap.bytes.begin + offset, heap.bytes.begin + offset + size};
    }
    if (!isHeap(record.code)) return _take(record);
    if (_heaps.size() < limits.ciffHeaps) _heaps.push_back({record.code, record.bytes});
  }

  io::SourceReader& _file;
  io::ByteOrder _order;
  const std::function<void(const CiffRecord&)>& _take;
  std::vector<Heap> _heaps;
};

}  // namespace

bool forEachCiffRecord(io::SourceReader& file, io::ByteRange heap, io::ByteOrder order,
                       const std::function<void(const CiffRecord&)>& take) {
  HeapWalk walk(file, order, take);
  const bool hasDirectory = walk.walk({0, heap});
  walk.walkRest();
  return hasDirectory;
}

}  // namespace media::image
