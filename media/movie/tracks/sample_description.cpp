// SPDX-License-Identifier: MIT
#include "media/movie/tracks/sample_description.h"

#include "media/movie/boxes/limits.h"
#include "media/movie/tracks/audio_description.h"
#include "media/movie/tracks/metadata_description.h"
#include "media/movie/tracks/video_description.h"

namespace media::movie {

namespace {

using model::FormatDescription;
using model::fourCharCode;

// Timecode, text, captions and the like: the bytes say it all.
FormatDescription otherDescription(const SampleEntry& entry) {
  FormatDescription description;
  description.mediaType = entry.mediaType;
  description.mediaSubType = entry.box.type;
  setVerbatimEntry(description.extensions, entry);
  return description;
}

struct Kind {
  model::FourCharCode mediaType;
  FormatDescription (*describe)(const SampleEntry&);
};

constexpr Kind kinds[] = {
    {fourCharCode("vide"), videoDescription},    {fourCharCode("auxv"), videoDescription},
    {fourCharCode("pict"), videoDescription},    {fourCharCode("soun"), audioDescription},
    {fourCharCode("meta"), metadataDescription},
};

FormatDescription describe(const SampleEntry& entry) {
  for (const Kind& kind : kinds) {
    if (kind.mediaType == entry.mediaType) return kind.describe(entry);
  }
  return otherDescription(entry);
}

}  // namespace

std::vector<FormatDescription> parseSampleDescriptions(io::ByteView table, SampleEntry track) {
  std::vector<FormatDescription> descriptions;
  track.tableVersion = table.u8(0).value_or(0);
  const std::uint32_t count = table.u32(4, io::ByteOrder::big).value_or(0);
  BoxViewWalk walk(table.from(8));
  for (std::uint32_t index = 0; index < count; ++index) {
    const auto box = walk.next();
    if (!box || descriptions.size() == limits.descriptionsPerTrack) break;
    track.box = *box;
    descriptions.push_back(describe(track));
  }
  return descriptions;
}

}  // namespace media::movie
