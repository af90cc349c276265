// SPDX-License-Identifier: MIT
//
// Samples of all tracks are cut into chunks of some length and put one after another by time, as a
// player wants to read them. The tables then say the same in the file's form: runs of equal
// durations and offsets, chunks with equal numbers of samples, sizes, and the places of the chunks.
#include "samples/movies/sample_table.h"

#include <algorithm>
#include <utility>

namespace samples {

namespace {

constexpr double chunkSeconds = 0.5;

using Run = std::pair<std::uint32_t, std::int64_t>;  // how often, which value

// Values of one sample after another, with equal neighbours counted together.
template <typename ValueOf>
std::vector<Run> runs(const MovieTrack& track, ValueOf valueOf) {
  std::vector<Run> found;
  for (const TrackSample& sample : track.samples) {
    const std::int64_t value = valueOf(sample);
    if (found.empty() || found.back().second != value) found.push_back({0, value});
    found.back().first += sample.units;
  }
  return found;
}

void writeRuns(BoxWriter& out, std::string_view type, const std::vector<Run>& entries) {
  out.begin(type, 0);
  out.u32(entries.size());
  for (const auto& [count, value] : entries) {
    out.u32(count);
    out.u32(value);
  }
  out.end();
}

std::int64_t compositionOffset(const TrackSample& sample) {
  return sample.compositionOffset;
}

// "ctts" and, because offsets may be negative, "cslg".
void writeComposition(BoxWriter& out, const MovieTrack& track) {
  const std::vector<Run> offsets = runs(track, compositionOffset);
  if (offsets.size() == 1 && offsets.front().second == 0) return;
  writeRuns(out, "ctts", offsets);
  const auto bySize = [](const Run& a, const Run& b) { return a.second < b.second; };
  const auto [least, greatest] = std::minmax_element(offsets.begin(), offsets.end(), bySize);
  out.begin("cslg", 0);
  out.u32(-least->second);
  out.u32(least->second);
  out.u32(greatest->second);
  out.u32(0);
  out.u32(mediaDuration(track));
  out.end();
}

void writeKeys(BoxWriter& out, const MovieTrack& track) {
  if (track.kind != TrackKind::video) return;
  std::vector<std::size_t> keys;
  for (std::size_t index = 0; index < track.samples.size(); ++index)
    if (track.samples[index].isKey) keys.push_back(index + 1);
  out.begin("stss", 0);
  out.u32(keys.size());
  for (const std::size_t key : keys) out.u32(key);
  out.end();
  out.begin("sdtp", 0);
  for (const TrackSample& sample : track.samples) out.u8(sample.isKey ? 0x20 : 0x10);
  out.end();
}

std::uint32_t unitsOf(const MovieTrack& track, const Chunk& chunk) {
  std::uint32_t units = 0;
  for (std::size_t index = 0; index < chunk.sampleCount; ++index)
    units += track.samples[chunk.firstSample + index].units;
  return units;
}

void writeChunkSizes(BoxWriter& out, const MovieTrack& track, const std::vector<Chunk>& chunks) {
  std::vector<std::pair<std::size_t, std::uint32_t>> changes;  // from which chunk, how many samples
  for (std::size_t index = 0; index < chunks.size(); ++index) {
    const std::uint32_t units = unitsOf(track, chunks[index]);
    if (changes.empty() || changes.back().second != units) changes.push_back({index + 1, units});
  }
  out.begin("stsc", 0);
  out.u32(changes.size());
  for (const auto& [first, units] : changes) {
    out.u32(first);
    out.u32(units);
    out.u32(1);
  }
  out.end();
}

void writeSampleSizes(BoxWriter& out, const MovieTrack& track) {
  const TrackSample& first = track.samples.front();
  out.begin("stsz", 0);
  if (first.units > 1) {
    std::uint32_t count = 0;
    for (const TrackSample& sample : track.samples) count += sample.units;
    out.u32(first.data.size() / first.units);
    out.u32(count);
  } else {
    out.u32(0);
    out.u32(track.samples.size());
    for (const TrackSample& sample : track.samples) out.u32(sample.data.size());
  }
  out.end();
}

void addChunks(std::vector<Chunk>& chunks, const MovieTrack& track, std::size_t number) {
  double time = 0;
  for (std::size_t index = 0; index < track.samples.size(); ++index) {
    const TrackSample& sample = track.samples[index];
    const bool starts = chunks.empty() || chunks.back().track != number ||
                        time - chunks.back().start >= chunkSeconds;
    if (starts) chunks.push_back({.track = number, .firstSample = index, .start = time});
    ++chunks.back().sampleCount;
    chunks.back().size += sample.data.size();
    time += static_cast<double>(sample.duration) * sample.units / track.timeScale;
  }
}

}  // namespace

std::uint64_t mediaDuration(const MovieTrack& track) {
  std::uint64_t duration = 0;
  for (const TrackSample& sample : track.samples)
    duration += std::uint64_t{sample.duration} * sample.units;
  return duration;
}

std::vector<Chunk> interleavedChunks(const std::vector<MovieTrack>& tracks) {
  std::vector<Chunk> chunks;
  for (std::size_t number = 0; number < tracks.size(); ++number)
    addChunks(chunks, tracks[number], number);
  std::stable_sort(chunks.begin(), chunks.end(),
                   [](const Chunk& a, const Chunk& b) { return a.start < b.start; });
  return chunks;
}

void writeSampleTable(BoxWriter& out, const MovieTrack& track, const std::vector<Chunk>& chunks,
                      const std::vector<std::uint64_t>& offsets) {
  out.begin("stbl");
  out.begin("stsd", 0);
  out.u32(1);
  out.append(track.description);
  out.end();
  writeRuns(out, "stts", runs(track, [](const TrackSample& sample) { return sample.duration; }));
  writeComposition(out, track);
  writeKeys(out, track);
  writeChunkSizes(out, track, chunks);
  writeSampleSizes(out, track);
  out.begin("stco", 0);
  out.u32(offsets.size());
  for (const std::uint64_t offset : offsets) out.u32(offset);
  out.end();
  out.end();
}

}  // namespace samples
