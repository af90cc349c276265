// SPDX-License-Identifier: MIT
//
// A table says which boxes of a track are wanted and where they nest; one walk collects them, and
// only then are they read, in the order in which they need each other: the header, the kind of
// media, the descriptions, the samples. Samples of fragments are added later, so what depends on
// their sums (duration, rates) is worked out when the track is finished.
#include "media/movie/tracks/track_reader.h"

#include <limits>

#include "media/movie/boxes/four_char_text.h"
#include "media/movie/boxes/time_headers.h"
#include "media/movie/metadata/common_metadata.h"
#include "media/movie/tracks/sample_description.h"
#include "media/movie/tracks/video_description.h"

namespace media::movie {

namespace {

using model::FourCharCode;
using model::fourCharCode;

constexpr FourCharCode videoType = fourCharCode("vide");
constexpr FourCharCode soundType = fourCharCode("soun");
constexpr FourCharCode metadataType = fourCharCode("meta");
constexpr FourCharCode imagesType = fourCharCode("pict");

// The boxes of a track that are read, wherever they nest.
struct TrackBoxes {
  std::optional<io::IsoBox> header;
  std::optional<io::IsoBox> edits;
  std::optional<io::IsoBox> mediaHeader;
  std::optional<io::IsoBox> handler;
  std::optional<io::IsoBox> descriptions;
  std::optional<io::IsoBox> times;
  std::optional<io::IsoBox> sizes;
  std::optional<io::IsoBox> metadata;
  std::optional<io::IsoBox> userData;
};

struct Place {
  FourCharCode parent;
  FourCharCode type;
  std::optional<io::IsoBox> TrackBoxes::*box;  // null for a container that is walked
};

constexpr Place places[] = {
    {fourCharCode("trak"), fourCharCode("tkhd"), &TrackBoxes::header},
    {fourCharCode("trak"), fourCharCode("meta"), &TrackBoxes::metadata},
    {fourCharCode("trak"), fourCharCode("udta"), &TrackBoxes::userData},
    {fourCharCode("trak"), fourCharCode("edts"), nullptr},
    {fourCharCode("edts"), fourCharCode("elst"), &TrackBoxes::edits},
    {fourCharCode("trak"), fourCharCode("mdia"), nullptr},
    {fourCharCode("mdia"), fourCharCode("mdhd"), &TrackBoxes::mediaHeader},
    {fourCharCode("mdia"), fourCharCode("hdlr"), &TrackBoxes::handler},
    {fourCharCode("mdia"), fourCharCode("minf"), nullptr},
    {fourCharCode("minf"), fourCharCode("stbl"), nullptr},
    {fourCharCode("stbl"), fourCharCode("stsd"), &TrackBoxes::descriptions},
    {fourCharCode("stbl"), fourCharCode("stts"), &TrackBoxes::times},
    {fourCharCode("stbl"), fourCharCode("stsz"), &TrackBoxes::sizes},
    {fourCharCode("stbl"), fourCharCode("stz2"), &TrackBoxes::sizes},
};

// Recurses along the table only, so at most as deep as its longest chain. The first box counts.
void collect(MovieWalk& walk, const io::IsoBox& parent, TrackBoxes& boxes) {
  forEachBox(walk, parent.payload, [&](const io::IsoBox& box) {
    for (const Place& place : places) {
      if (place.parent != parent.type || place.type != box.type) continue;
      if (place.box == nullptr) {
        collect(walk, box, boxes);
      } else if (!(boxes.*place.box)) {
        boxes.*place.box = box;
      }
    }
  });
}

// The head of a box; empty where there is no such box.
io::ByteView headOf(MovieWalk& walk, const std::optional<io::IsoBox>& box, std::uint64_t length) {
  return box ? headOfBox(walk, *box, length) : io::ByteView();
}

// A table that goes on behind the end of the file adds up to less than there is.
bool isWhole(const std::optional<io::IsoBox>& table) {
  return table && !table->isCut;
}

FourCharCode readHandler(MovieWalk& walk, const TrackBoxes& boxes) {
  return headOf(walk, boxes.handler, 12).u32(8, io::ByteOrder::big).value_or(0);
}

void readDescriptions(MovieWalk& walk, const TrackBoxes& boxes, FileFormat format,
                      FourCharCode mediaType, TrackDraft& draft) {
  if (!boxes.descriptions) return;
  const std::uint64_t size = boxes.descriptions->payload.size();
  if (size > walk.budget.descriptionBytes) return;
  walk.budget.descriptionBytes -= size;
  const auto table = io::boxBytes(walk.reader, *boxes.descriptions, size);
  if (!table) return;
  SampleEntry entry;
  entry.mediaType = mediaType;
  entry.format = format;
  entry.mediaTimeScale = draft.mediaTimeScale;
  draft.track.formatDescriptions = parseSampleDescriptions(*table, entry);
}

// Compressed packets of one size are counted by the frame in old QuickTime files, and linear
// samples are often stated to be one byte each: the stream description knows better.
void correctConstantSize(TrackDraft& draft) {
  if (!draft.totals.hasConstantSize || draft.track.formatDescriptions.empty()) return;
  const auto& audio = draft.track.formatDescriptions.front().audio;
  if (!audio || audio->bytesPerPacket == 0 || audio->framesPerPacket == 0) return;
  draft.totals.bytes = static_cast<std::uint64_t>(static_cast<double>(draft.totals.count) /
                                                  audio->framesPerPacket * audio->bytesPerPacket);
}

void readSamples(MovieWalk& walk, const TrackBoxes& boxes, TrackDraft& draft) {
  if (isWhole(boxes.times)) addTimeToSample(walk, *boxes.times, draft.totals);
  if (isWhole(boxes.sizes)) addSampleSizes(walk, *boxes.sizes, draft.totals);
  correctConstantSize(draft);
}

// Sound and metadata have no size. The track header's is that of the presentation; where it is
// missing, as in streams, the video's own counts.
model::Size naturalSize(const model::Size& headerSize, FourCharCode mediaType,
                        const model::Track& track) {
  if (mediaType == soundType || mediaType == metadataType) return {};
  if (headerSize.width > 0 && headerSize.height > 0) return headerSize;
  const bool isPicture = mediaType == videoType || mediaType == imagesType;
  if (!isPicture || track.formatDescriptions.empty()) return headerSize;
  return presentationSize(track.formatDescriptions.front());
}

double statedDuration(MovieWalk& walk, const TrackBoxes& boxes, const TrackHeader& header,
                      const MovieFacts& movie) {
  constexpr std::uint64_t editHead = 8;
  constexpr std::uint64_t largestEdit = 20;
  const auto nan = std::numeric_limits<double>::quiet_NaN();
  if (const auto seconds = secondsOf(header.duration, movie.timeScale)) return *seconds;
  if (!isWhole(boxes.edits)) return nan;
  const io::ByteView edits = headOf(
      walk, boxes.edits, editHead + largestEdit * static_cast<std::uint64_t>(limits.editsPerTrack));
  return secondsOf(editListDuration(edits), movie.timeScale).value_or(nan);
}

}  // namespace

std::optional<TrackDraft> readTrack(MovieWalk& walk, const io::IsoBox& box,
                                    const MovieFacts& movie) {
  constexpr std::uint64_t longestHeader = 96;
  TrackBoxes boxes;
  collect(walk, box, boxes);
  const auto header = parseTrackHeader(headOf(walk, boxes.header, longestHeader));
  const FourCharCode mediaType = readHandler(walk, boxes);
  if (!header || mediaType == 0) return std::nullopt;
  TrackDraft draft;
  if (const auto media = parseTimeHeader(headOf(walk, boxes.mediaHeader, longestHeader))) {
    draft.mediaTimeScale = media->timeScale;
    draft.mediaDuration = media->duration;
  }
  draft.track.trackID = header->trackID;
  draft.track.mediaType = fourCharText(mediaType);
  draft.track.preferredTransform = header->transform;
  draft.track.duration = statedDuration(walk, boxes, *header, movie);
  readDescriptions(walk, boxes, movie.format, mediaType, draft);
  draft.track.naturalSize = naturalSize(header->size, mediaType, draft.track);
  readSamples(walk, boxes, draft);
  draft.track.commonMetadata = readCommonMetadata(walk, boxes.metadata, boxes.userData);
  return draft;
}

model::Track finishTrack(TrackDraft draft, const MovieFacts& movie) {
  const SampleTotals& totals = draft.totals;
  model::Track& track = draft.track;
  const bool usesSamples = draft.mediaDuration == 0 || (movie.isFragmented && totals.ticks > 0);
  const auto seconds =
      secondsOf(usesSamples ? totals.ticks : draft.mediaDuration, draft.mediaTimeScale);
  if (seconds && !(track.duration > 0)) track.duration = *seconds;
  if (seconds) {
    track.estimatedDataRate =
        static_cast<float>(8.0 * static_cast<double>(totals.bytes) / *seconds);
    track.nominalFrameRate = static_cast<float>(static_cast<double>(totals.count) / *seconds);
  }
  if (track.mediaType != "soun")
    track.minFrameDuration = secondsOf(totals.smallestDelta, draft.mediaTimeScale);
  return std::move(draft.track);
}

}  // namespace media::movie
