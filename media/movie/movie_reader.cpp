// SPDX-License-Identifier: MIT
//
// One walk notes where the boxes of the header lie; then they are read in the order in which they
// need each other: times, fragments, tracks, metadata. A compressed header is unpacked first and
// read the same way. What the end of the file or a limit cut is told beside the asset.
#include "media/movie/movie_reader.h"

#include <cmath>
#include <map>

#include "media/movie/boxes/compressed_movie.h"
#include "media/movie/boxes/range_source.h"
#include "media/movie/boxes/saturating.h"
#include "media/movie/boxes/time_headers.h"
#include "media/movie/metadata/common_metadata.h"
#include "media/movie/metadata/iso_date.h"
#include "media/movie/tracks/fragments.h"
#include "media/movie/tracks/track_reader.h"
#include "model/number_text.h"

namespace media::movie {

namespace {

using model::MediaAsset;

constexpr char truncatedMovie[] = "truncated movie";

// The boxes of a movie header that are read; the first of a kind counts.
struct MovieBoxes {
  std::optional<io::IsoBox> header;
  std::optional<io::IsoBox> fragments;
  std::optional<io::IsoBox> metadata;
  std::optional<io::IsoBox> userData;
  std::optional<io::IsoBox> compressed;
  std::vector<io::IsoBox> tracks;
  std::int64_t tracksLeftOut = 0;  // beyond the limit
};

void takeFirst(std::optional<io::IsoBox>& place, const io::IsoBox& box) {
  if (!place) place = box;
}

MovieBoxes collect(MovieWalk& walk) {
  MovieBoxes boxes;
  forEachBox(walk, walk.all(), [&](const io::IsoBox& box) {
    if (box.is("mvhd")) takeFirst(boxes.header, box);
    if (box.is("mvex")) takeFirst(boxes.fragments, box);
    if (box.is("meta")) takeFirst(boxes.metadata, box);
    if (box.is("udta")) takeFirst(boxes.userData, box);
    if (box.is("cmov")) takeFirst(boxes.compressed, box);
    if (!box.is("trak")) return;
    if (boxes.tracks.size() < static_cast<std::size_t>(limits.tracks))
      boxes.tracks.push_back(box);
    else
      ++boxes.tracksLeftOut;
  });
  return boxes;
}

TimeHeader readHeader(MovieWalk& walk, const MovieBoxes& boxes) {
  constexpr std::uint64_t longestHeader = 96;
  if (!boxes.header) return {};
  return parseTimeHeader(headOfBox(walk, *boxes.header, longestHeader)).value_or(TimeHeader());
}

void add(SampleTotals& totals, const SampleTotals& more) {
  totals.count = saturatingAdd(totals.count, more.count);
  totals.bytes = saturatingAdd(totals.bytes, more.bytes);
  totals.ticks = saturatingAdd(totals.ticks, more.ticks);
  takeDelta(totals, more.smallestDelta);
}

// The longest track, where the header states no duration.
double longestTrack(const MediaAsset& asset) {
  double longest = 0;
  for (const model::Track& track : asset.tracks) longest = std::fmax(longest, track.duration);
  return longest;
}

// The moment that the metadata states with its offset, or else that of the header.
std::optional<model::Date> creationDate(const MediaAsset& asset, const TimeHeader& header) {
  for (const model::MetadataItem& item : asset.commonMetadata) {
    if (item.commonKey != "creationDate" || !item.value || !item.value->asString()) continue;
    if (const auto date = parseIsoDate(*item.value->asString())) return date;
  }
  return dateOfCreationTime(header.creationTime);
}

std::string shortfallOf(const MovieBoxes& boxes, const MovieLayout& layout) {
  std::string text = layout.isMovieCut ? truncatedMovie : "";
  if (boxes.tracksLeftOut == 0) return text;
  if (!text.empty()) text += ", ";
  return text + "tracks left out: " + model::integerText(boxes.tracksLeftOut);
}

// Reads one movie header; `source` is the whole file, where its fragments lie.
MovieFile readAsset(MovieWalk& walk, const MovieBoxes& boxes, io::ByteSource& source,
                    const MovieLayout& layout) {
  const TimeHeader header = readHeader(walk, boxes);
  MovieFacts facts{layout.format, header.timeScale, boxes.fragments.has_value()};
  FragmentHeader fragmentHeader;
  std::map<std::uint32_t, SampleTotals> fragments;
  if (boxes.fragments) {
    fragmentHeader = readFragmentHeader(walk, *boxes.fragments);
    fragments = readFragments(source, layout, fragmentHeader);
  }
  MediaAsset asset;
  for (const io::IsoBox& box : boxes.tracks) {
    auto draft = readTrack(walk, box, facts);
    if (!draft) continue;
    const auto more = fragments.find(static_cast<std::uint32_t>(draft->track.trackID));
    if (more != fragments.end()) add(draft->totals, more->second);
    asset.tracks.push_back(finishTrack(std::move(*draft), facts));
  }
  asset.commonMetadata = readCommonMetadata(walk, boxes.metadata, boxes.userData);
  asset.creationDate = creationDate(asset, header);
  const std::uint64_t ticks = header.duration != 0 ? header.duration : fragmentHeader.duration;
  asset.duration = secondsOf(ticks, header.timeScale).value_or(longestTrack(asset));
  return {std::move(asset), shortfallOf(boxes, layout)};
}

// A movie whose header was compressed: the box that came out, with its own header.
model::Result<MovieFile> readInflated(std::vector<std::uint8_t> movie, io::ByteSource& source,
                                      const MovieLayout& layout) {
  io::MemorySource memory(std::move(movie));
  io::SourceReader whole(memory);
  const auto box = io::findBox(whole, {0, memory.size()}, model::fourCharCode("moov"));
  if (!box) return model::Error{"damaged compressed movie header"};
  RangeSource inside(memory, box->payload);
  io::SourceReader reader(inside);
  Budget budget;
  MovieWalk walk{reader, budget};
  return readAsset(walk, collect(walk), source, layout);
}

}  // namespace

model::Result<MovieFile> readMovie(io::ByteSource& source, const MovieLayout& layout) {
  RangeSource bytes(source, layout.movie);
  io::SourceReader reader(bytes);
  Budget budget;
  MovieWalk walk{reader, budget};
  const MovieBoxes boxes = collect(walk);
  if (boxes.compressed && boxes.tracks.empty()) {
    auto movie = inflateMovie(walk, *boxes.compressed);
    if (reader.failure()) return *reader.failure();
    if (!movie) return layout.isMovieCut ? model::Error{truncatedMovie} : movie.error();
    return readInflated(std::move(*movie), source, layout);
  }
  MovieFile movie = readAsset(walk, boxes, source, layout);
  if (reader.failure()) return *reader.failure();
  if (layout.isMovieCut && movie.asset == MediaAsset()) return model::Error{truncatedMovie};
  return movie;
}

}  // namespace media::movie
