// SPDX-License-Identifier: MIT
#include "media/movie/tracks/sample_table.h"

#include <limits>

#include "media/movie/boxes/saturating.h"

namespace media::movie {

namespace {

using io::ByteOrder::big;

io::ByteRange behind(const io::IsoBox& box, std::uint64_t headerSize) {
  return {std::min(box.payload.begin + headerSize, box.payload.end), box.payload.end};
}

// One size of a table whose fields are that wide; two sizes for fields of four bits.
std::uint64_t sizeInEntry(io::ByteView entry, std::uint32_t fieldBits) {
  if (fieldBits == 32) return entry.u32(0, big).value_or(0);
  if (fieldBits == 16) return entry.u16(0, big).value_or(0);
  const std::uint8_t byte = entry.u8(0).value_or(0);
  return fieldBits == 8 ? byte : std::uint64_t{byte} / 16 + byte % 16;
}

void addSizeTable(MovieWalk& walk, io::ByteRange table, std::uint32_t fieldBits,
                  std::uint32_t count, SampleTotals& totals) {
  if (fieldBits != 4 && fieldBits != 8 && fieldBits != 16 && fieldBits != 32) return;
  const std::uint64_t entrySize = std::max(fieldBits / 8, std::uint32_t{1});
  const std::uint64_t entries = fieldBits == 4 ? (std::uint64_t{count} + 1) / 2 : count;
  totals.count = std::min<std::uint64_t>(count, table.size() * 8 / fieldBits);
  std::uint64_t bytes = 0;
  const bool isWhole = forEachEntry(walk, table, entrySize, entries, [&](io::ByteView entry) {
    bytes += sizeInEntry(entry, fieldBits);
  });
  if (isWhole) totals.bytes = bytes;
}

}  // namespace

void takeDelta(SampleTotals& totals, std::uint32_t delta) {
  constexpr std::uint32_t largest = std::numeric_limits<std::int32_t>::max();
  if (delta == 0 || delta > largest) return;
  if (totals.smallestDelta == 0 || delta < totals.smallestDelta) totals.smallestDelta = delta;
}

void addTimeToSample(MovieWalk& walk, const io::IsoBox& box, SampleTotals& totals) {
  const io::ByteView header = headOfBox(walk, box, 8);
  const std::uint32_t count = header.u32(4, big).value_or(0);
  forEachEntry(walk, behind(box, 8), 8, count, [&](io::ByteView entry) {
    const std::uint32_t samples = entry.u32(0, big).value_or(0);
    const std::uint32_t delta = entry.u32(4, big).value_or(0);
    totals.count = saturatingAdd(totals.count, samples);
    totals.ticks = saturatingAdd(totals.ticks, saturatingMultiply(samples, delta));
    if (samples > 0) takeDelta(totals, delta);
  });
}

void addSampleSizes(MovieWalk& walk, const io::IsoBox& box, SampleTotals& totals) {
  const io::ByteView header = headOfBox(walk, box, 12);
  const auto size = header.u32(4, big);
  const auto count = header.u32(8, big);
  if (!size || !count) return;
  if (box.is("stz2")) {
    addSizeTable(walk, behind(box, 12), *size & 0xFF, *count, totals);
  } else if (*size == 0) {
    addSizeTable(walk, behind(box, 12), 32, *count, totals);
  } else {
    totals.count = *count;
    totals.hasConstantSize = true;
    totals.bytes = saturatingMultiply(*size, *count);
  }
}

}  // namespace media::movie
