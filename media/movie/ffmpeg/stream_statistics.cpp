// SPDX-License-Identifier: MIT
#include "media/movie/ffmpeg/stream_statistics.h"

#include <algorithm>
#include <cstdlib>
#include <span>
#include <string>
#include <vector>

#include "media/movie/other/container_limits.h"

namespace media::movie {

namespace {

constexpr char durationTag[] = "DURATION";  // "00:00:10.000000000"
constexpr char rateTag[] = "BPS";
constexpr char bytesTag[] = "NUMBER_OF_BYTES";
constexpr char framesTag[] = "NUMBER_OF_FRAMES";

// Some writers put a language behind the name.
const char* tagOf(const AVStream& stream, const char* name) {
  const AVDictionaryEntry* entry =
      av_dict_get(stream.metadata, name, nullptr, AV_DICT_IGNORE_SUFFIX);
  return entry == nullptr ? nullptr : entry->value;
}

double numberOf(const AVStream& stream, const char* name) {
  const char* text = tagOf(stream, name);
  return text == nullptr ? 0 : std::max(0.0, std::strtod(text, nullptr));
}

// Hours, minutes and seconds, or seconds alone.
double secondsOf(const char* text) {
  double seconds = 0;
  for (char* end = nullptr; text != nullptr; text = *end == ':' ? end + 1 : nullptr)
    seconds = seconds * 60 + std::strtod(text, &end);
  return std::max(0.0, seconds);
}

// What the packets of a stream add up to.
struct Totals {
  std::int64_t packets = 0;
  std::int64_t bytes = 0;
  std::int64_t end = 0;  // ticks of the stream
  std::int64_t lastStart = 0;
  std::int64_t lastStep = 0;  // stands for the length of a packet that states none
};

void add(Totals& totals, const AVPacket& packet) {
  ++totals.packets;
  totals.bytes += packet.size;
  if (packet.pts == AV_NOPTS_VALUE) return;
  if (packet.pts > totals.lastStart) totals.lastStep = packet.pts - totals.lastStart;
  totals.lastStart = packet.pts;
  const std::int64_t length = packet.duration > 0 ? packet.duration : totals.lastStep;
  totals.end = std::max(totals.end, packet.pts + length);
}

bool isStated(const AVStream& stream) {
  const StreamStatistics stated = statisticsOf(stream);
  return stated.duration > 0 && stated.dataRate > 0;
}

// Adds up packets as far as the limits go; whether that was the whole file.
bool measure(Demuxer& demuxer, std::vector<Totals>& streams) {
  AVPacket* packet = av_packet_alloc();
  std::uint64_t bytes = 0;
  int packets = 0;
  bool isEnd = packet == nullptr;
  while (!isEnd && bytes < containerLimits.measuredBytes &&
         packets < containerLimits.measuredPackets) {
    isEnd = !demuxer.readPacket(*packet);
    if (isEnd) break;
    ++packets;
    bytes += static_cast<std::uint64_t>(std::max(packet->size, 0));
    const auto index = static_cast<std::size_t>(packet->stream_index);
    if (index < streams.size()) add(streams[index], *packet);
    av_packet_unref(packet);
  }
  av_packet_free(&packet);
  return isEnd && !demuxer.areBytesCut() && !demuxer.arePacketsCut();
}

void setIfAbsent(AVStream& stream, const char* name, double value) {
  if (tagOf(stream, name) != nullptr) return;
  av_dict_set(&stream.metadata, name, std::to_string(value).c_str(), 0);
}

// A part of a video says nothing about the rest; sound is even.
void complete(AVStream& stream, const Totals& totals, bool isWhole) {
  const double seconds = static_cast<double>(totals.end) * av_q2d(stream.time_base);
  if (!(seconds > 0)) return;
  const bool isSound = stream.codecpar->codec_type == AVMEDIA_TYPE_AUDIO;
  if (isWhole) {
    setIfAbsent(stream, durationTag, seconds);
    setIfAbsent(stream, framesTag, static_cast<double>(totals.packets));
  }
  const bool hasRate = tagOf(stream, bytesTag) != nullptr;
  if ((isWhole || isSound) && !hasRate)
    setIfAbsent(stream, rateTag, 8.0 * static_cast<double>(totals.bytes) / seconds);
}

}  // namespace

StreamStatistics statisticsOf(const AVStream& stream) {
  StreamStatistics statistics{secondsOf(tagOf(stream, durationTag)), numberOf(stream, rateTag), 0};
  if (!(statistics.duration > 0)) return statistics;
  if (!(statistics.dataRate > 0))
    statistics.dataRate = 8 * numberOf(stream, bytesTag) / statistics.duration;
  statistics.frameRate = numberOf(stream, framesTag) / statistics.duration;
  return statistics;
}

void completeStatistics(Demuxer& demuxer) {
  AVFormatContext& context = demuxer.context();
  const std::span streams(context.streams, context.nb_streams);
  const bool isAllStated =
      std::ranges::all_of(streams, [](const AVStream* each) { return isStated(*each); });
  if (!demuxer.isMatroska() || isAllStated || demuxer.packetsRead() > 0) return;
  std::vector<Totals> totals(streams.size());
  const bool isWhole = measure(demuxer, totals);
  for (std::size_t index = 0; index < totals.size(); ++index)
    complete(*context.streams[index], totals[index], isWhole);
}

}  // namespace media::movie
