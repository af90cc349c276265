// SPDX-License-Identifier: MIT
//
// Two layouts: as recorded, with the samples first and the movie header behind them, and for
// streaming, with the header first. In the second the header says where samples lie that follow it,
// so it is built once to learn its size and once more with the right places.
#include "samples/movies/movie_file.h"

#include <algorithm>

#include "samples/movies/movie_metadata.h"
#include "samples/movies/track_boxes.h"

namespace samples {

namespace {

// From 1904-01-01, where QuickTime's clock begins, to 1970-01-01.
constexpr double secondsFrom1904To1970 = 2082844800;

bool isQuickTime(const Movie& movie) {
  return movie.brand == MovieBrand::quickTime;
}

std::uint32_t creationTime(const Movie& movie) {
  return static_cast<std::uint32_t>(momentOf(movie.taken, movie.place).secondsSince1970 +
                                    secondsFrom1904To1970);
}

std::uint32_t movieTimeScale(const Movie& movie) {
  return isQuickTime(movie) ? 600 : 1000;
}

void writeFileType(BoxWriter& out, const Movie& movie) {
  out.begin("ftyp");
  switch (movie.brand) {
    case MovieBrand::quickTime:
      out.text("qt  ");
      out.u32(0);
      out.text("qt  ");
      break;
    case MovieBrand::android:
      out.text("mp42");
      out.u32(0);
      out.text("isommp42");
      break;
    case MovieBrand::exported:
      out.text("isom");
      out.u32(0x200);
      out.text("isomiso2avc1mp41");
      break;
    case MovieBrand::sequence:
      out.text("msf1");
      out.u32(0);
      out.text("msf1hevc");
      break;
  }
  out.end();
}

void writeMovieHeader(BoxWriter& out, const Movie& movie, const std::vector<MovieTrack>& tracks) {
  std::uint64_t duration = 0;
  for (const MovieTrack& track : tracks)
    duration = std::max(duration, trackDuration(track, movieTimeScale(movie)));
  out.begin("mvhd", 0);
  out.u32(creationTime(movie));
  out.u32(creationTime(movie));
  out.u32(movieTimeScale(movie));
  out.u32(duration);
  out.u32(0x10000);  // normal speed
  out.u16(0x0100);   // full volume
  out.zeros(10);
  for (const int part : {0x10000, 0, 0, 0, 0x10000, 0, 0, 0, 0x40000000}) out.u32(part);
  out.zeros(24);
  out.u32(tracks.size() + 1);
  out.end();
}

std::size_t describedTrack(const std::vector<MovieTrack>& tracks) {
  const auto video = std::find_if(tracks.begin(), tracks.end(), [](const MovieTrack& track) {
    return track.kind == TrackKind::video;
  });
  return static_cast<std::size_t>(video - tracks.begin()) + 1;
}

// The "moov" box for samples that begin at `dataOffset` of the file.
Bytes movieBox(const Movie& movie, const std::vector<MovieTrack>& tracks,
               const std::vector<Chunk>& chunks, std::uint64_t dataOffset) {
  std::vector<std::vector<Chunk>> own(tracks.size());
  std::vector<std::vector<std::uint64_t>> offsets(tracks.size());
  for (const Chunk& chunk : chunks) {
    own[chunk.track].push_back(chunk);
    offsets[chunk.track].push_back(dataOffset);
    dataOffset += chunk.size;
  }
  BoxWriter out;
  out.begin("moov");
  writeMovieHeader(out, movie, tracks);
  for (std::size_t index = 0; index < tracks.size(); ++index)
    writeTrack(out, tracks[index],
               {.quickTime = isQuickTime(movie),
                .created = creationTime(movie),
                .movieTimeScale = movieTimeScale(movie),
                .number = index + 1,
                .describedTrack = describedTrack(tracks)},
               own[index], offsets[index]);
  out.append(movieMetadata(movie));
  out.end();
  return out.take();
}

Bytes sampleData(const std::vector<MovieTrack>& tracks, const std::vector<Chunk>& chunks) {
  ByteWriter out;
  for (const Chunk& chunk : chunks)
    for (std::size_t index = 0; index < chunk.sampleCount; ++index)
      out.append(tracks[chunk.track].samples[chunk.firstSample + index].data);
  return out.take();
}

// "moov" first, so that the film can begin while it is still being loaded.
FileContent streamableFile(const Movie& movie, const std::vector<MovieTrack>& tracks,
                           const std::vector<Chunk>& chunks) {
  BoxWriter out;
  writeFileType(out, movie);
  // The box is equally long whatever the offsets in it.
  const std::size_t moovSize = movieBox(movie, tracks, chunks, 0).size();
  constexpr std::size_t freeSize = 8;
  const std::size_t dataOffset = out.size() + moovSize + freeSize + 8;
  out.append(movieBox(movie, tracks, chunks, dataOffset));
  out.begin("free");
  out.end();
  out.begin("mdat");
  out.append(sampleData(tracks, chunks));
  out.end();
  return {.head = out.take()};
}

// Samples as they were recorded, then "moov". The space before "mdat" is where its size goes
// when four bytes are not enough.
FileContent recordedFile(const Movie& movie, const std::vector<MovieTrack>& tracks,
                         const std::vector<Chunk>& chunks) {
  BoxWriter out;
  writeFileType(out, movie);
  const std::size_t spaceStart = out.size();
  const Bytes data = sampleData(tracks, chunks);
  const std::uint64_t dataOffset = spaceStart + 16;
  const Bytes moov = movieBox(movie, tracks, chunks, dataOffset);
  if (movie.fileSize == 0) {
    out.begin(isQuickTime(movie) ? "wide" : "free");
    out.end();
    out.begin("mdat");
    out.append(data);
    out.end();
    out.append(moov);
    return {.head = out.take()};
  }
  const std::uint64_t moovOffset = movie.fileSize - moov.size();
  out.u32(1);  // the size follows in eight bytes
  out.text("mdat");
  out.u64(moovOffset - spaceStart);
  out.append(data);
  return {.head = out.take(), .tailOffset = moovOffset, .tail = moov};
}

}  // namespace

FileContent movieFile(const Movie& movie, const std::vector<MovieTrack>& tracks) {
  const std::vector<Chunk> chunks = interleavedChunks(tracks);
  return movie.brand == MovieBrand::exported ? streamableFile(movie, tracks, chunks)
                                             : recordedFile(movie, tracks, chunks);
}

}  // namespace samples
