// SPDX-License-Identifier: MIT
#include <algorithm>

#include "device/loading/rules.h"

namespace device::loading::segment_rules {
namespace {

constexpr std::uint64_t pageSize = 16384;

// Whether [offset, offset + size) lies in [outer, outer + outerSize).
bool liesIn(std::uint64_t offset, std::uint64_t size, std::uint64_t outer,
            std::uint64_t outerSize) {
  return offset >= outer && offset - outer <= outerSize && size <= outerSize - (offset - outer);
}

bool isMappedFromFile(const Segment& segment, io::ByteView file) {
  return file.contains(segment.fileOffset, segment.fileSize) && segment.fileSize <= segment.size;
}

// The first address behind a segment's pages, or 0 where there is none.
std::uint64_t endOf(const Segment& segment) {
  const std::uint64_t end = segment.address + segment.size + pageSize - 1;
  return end < segment.address ? 0 : end / pageSize * pageSize;
}

bool overlap(const Segment& one, const Segment& other) {
  return one.address < endOf(other) && other.address < endOf(one);
}

}  // namespace

Problem text(const Subject& subject) {
  const MachLibrary& library = subject.library;
  if (library.segments.empty() || library.segments.front().name != "__TEXT")
    return "the first segment is not __TEXT";
  const Segment& text = library.segments.front();
  const std::uint64_t mapped = std::uint64_t{Header::size} + library.header.commandsSize;
  if (text.fileOffset != 0 || text.fileSize < mapped)
    return "__TEXT does not map the header and the load commands";
  if ((text.maximalProtection & writable) != 0) return "__TEXT may be written to";
  return text.protection == (readable | executable) ? "" : "__TEXT is not to be read and executed";
}

Problem linkEdit(const Subject& subject) {
  const auto& segments = subject.library.segments;
  if (segments.empty() || segments.back().name != "__LINKEDIT")
    return "the last segment is not __LINKEDIT";
  return segments.back().protection == readable ? "" : "__LINKEDIT is not for reading only";
}

Problem fileRanges(const Subject& subject) {
  for (const Segment& segment : subject.library.segments)
    if (!isMappedFromFile(segment, subject.library.file))
      return segment.name + " is larger than the file or than its memory";
  return {};
}

Problem addressRanges(const Subject& subject) {
  const auto& segments = subject.library.segments;
  for (auto segment = segments.begin(); segment != segments.end(); ++segment) {
    if (segment->address % pageSize != 0 || endOf(*segment) == 0)
      return segment->name + " does not begin at a page, or runs over the end of memory";
    const auto isOver = [&](const Segment& other) { return overlap(*segment, other); };
    if (std::any_of(segments.begin(), segment, isOver))
      return segment->name + " lies over another segment";
  }
  return {};
}

Problem sections(const Subject& subject) {
  for (const Segment& segment : subject.library.segments)
    for (const Section& section : segment.sections)
      if (!liesIn(section.address, section.size, segment.address, segment.size))
        return section.name + " does not lie in " + segment.name;
  return {};
}

}  // namespace device::loading::segment_rules
