// SPDX-License-Identifier: MIT
#include "media/movie/tracks/fragments.h"

#include <bit>

#include "media/movie/boxes/range_source.h"
#include "media/movie/boxes/saturating.h"

namespace media::movie {

namespace {

using io::ByteOrder::big;

std::uint32_t flagsOf(io::ByteView fullBox) {
  return fullBox.u32(0, big).value_or(0) & 0xFFFFFF;
}

// Optional fields stand one after the other: the offset of each follows from those before it.
class OptionalFields {
 public:
  OptionalFields(io::ByteView bytes, std::uint64_t offset) : _bytes(bytes), _offset(offset) {}

  // The next field where its flag is set.
  std::optional<std::uint32_t> next(bool isThere, std::uint64_t size = 4) {
    if (!isThere) return std::nullopt;
    const auto value = _bytes.u32(_offset, big);
    _offset += size;
    return value;
  }
  std::uint64_t offset() const { return _offset; }

 private:
  io::ByteView _bytes;
  std::uint64_t _offset;
};

// The part of a track in one fragment ("traf").
struct TrackFragment {
  std::uint32_t trackID = 0;
  FragmentDefaults defaults;
};

// "tfhd"
std::optional<TrackFragment> readTrackFragment(io::ByteView box, const FragmentHeader& header) {
  const auto trackID = box.u32(4, big);
  if (!trackID) return std::nullopt;
  TrackFragment fragment{*trackID, {}};
  const auto known = header.defaults.find(*trackID);
  if (known != header.defaults.end()) fragment.defaults = known->second;
  const std::uint32_t flags = flagsOf(box);
  OptionalFields fields(box, 8);
  fields.next((flags & 0x1) != 0, 8);  // base data offset
  fields.next((flags & 0x2) != 0);     // sample description
  if (const auto duration = fields.next((flags & 0x8) != 0)) fragment.defaults.duration = *duration;
  if (const auto size = fields.next((flags & 0x10) != 0)) fragment.defaults.size = *size;
  return fragment;
}

void addSamples(SampleTotals& totals, std::uint64_t count, std::uint32_t duration,
                std::uint32_t size) {
  totals.count = saturatingAdd(totals.count, count);
  totals.ticks = saturatingAdd(totals.ticks, saturatingMultiply(count, duration));
  totals.bytes = saturatingAdd(totals.bytes, saturatingMultiply(count, size));
  if (count > 0) takeDelta(totals, duration);
}

// "trun"
void addRun(MovieWalk& walk, const io::IsoBox& box, const FragmentDefaults& defaults,
            SampleTotals& totals) {
  constexpr std::uint64_t longestHeader = 16;
  const io::ByteView head = headOfBox(walk, box, longestHeader);
  const std::uint32_t flags = flagsOf(head);
  const std::uint32_t count = head.u32(4, big).value_or(0);
  OptionalFields fields(head, 8);
  fields.next((flags & 0x1) != 0);  // data offset
  fields.next((flags & 0x4) != 0);  // flags of the first sample
  const bool hasDuration = (flags & 0x100) != 0;
  const bool hasSize = (flags & 0x200) != 0;
  const auto entrySize = 4 * static_cast<std::uint64_t>(std::popcount(flags & 0xF00));
  if (entrySize == 0) {
    addSamples(totals, count, defaults.duration, defaults.size);
    return;
  }
  const std::uint64_t begin = std::min(box.payload.begin + fields.offset(), box.payload.end);
  forEachEntry(walk, {begin, box.payload.end}, entrySize, count, [&](io::ByteView entry) {
    OptionalFields sample(entry, 0);
    const auto duration = sample.next(hasDuration);
    const auto size = sample.next(hasSize);
    addSamples(totals, 1, duration.value_or(defaults.duration), size.value_or(defaults.size));
  });
}

using TotalsByTrack = std::map<std::uint32_t, SampleTotals>;

void addTrackFragment(MovieWalk& walk, const io::IsoBox& box, const FragmentHeader& header,
                      TotalsByTrack& totals) {
  constexpr std::uint64_t longestHeader = 64;
  std::optional<TrackFragment> fragment;
  forEachBox(walk, box.payload, [&](const io::IsoBox& child) {
    if (child.is("tfhd")) {
      if (const auto bytes = io::boxBytes(walk.reader, child, longestHeader))
        fragment = readTrackFragment(*bytes, header);
    }
    if (!child.is("trun") || !fragment || !header.defaults.contains(fragment->trackID)) return;
    addRun(walk, child, fragment->defaults, totals[fragment->trackID]);
  });
}

}  // namespace

FragmentHeader readFragmentHeader(MovieWalk& walk, const io::IsoBox& box) {
  constexpr std::uint64_t longestHeader = 64;
  FragmentHeader header;
  forEachBox(walk, box.payload, [&](const io::IsoBox& child) {
    const auto bytes = io::boxBytes(walk.reader, child, longestHeader);
    if (!bytes) return;
    if (child.is("mehd")) {
      const bool isWide = bytes->u8(0).value_or(0) == 1;
      header.duration = isWide ? bytes->u64(4, big).value_or(0) : bytes->u32(4, big).value_or(0);
    }
    if (!child.is("trex") || header.defaults.size() >= static_cast<std::size_t>(limits.tracks))
      return;
    header.defaults[bytes->u32(4, big).value_or(0)] = {bytes->u32(12, big).value_or(0),
                                                       bytes->u32(16, big).value_or(0)};
  });
  return header;
}

TotalsByTrack readFragments(io::ByteSource& source, const MovieLayout& layout,
                            const FragmentHeader& header) {
  Budget budget;
  budget.boxes = limits.fragmentBoxes;
  TotalsByTrack totals;
  for (const io::ByteRange& range : layout.fragments) {
    if (budget.boxes <= 0) break;
    RangeSource bytes(source, range);
    io::SourceReader reader(bytes);
    MovieWalk walk{reader, budget};
    forEachBox(walk, walk.all(), [&](const io::IsoBox& box) {
      if (box.is("traf")) addTrackFragment(walk, box, header, totals);
    });
  }
  return totals;
}

}  // namespace media::movie
