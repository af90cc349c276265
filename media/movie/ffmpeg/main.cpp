// SPDX-License-Identifier: MIT
//
// The program that reads other containers: confines itself, then answers one order after the other,
// a file each. It ends with whoever started it.
#include <unistd.h>

#include <exception>
#include <new>
#include <span>

#include "media/movie/ffmpeg/coded_headers.h"
#include "media/movie/ffmpeg/demuxer.h"
#include "media/movie/ffmpeg/metadata.h"
#include "media/movie/ffmpeg/stream_statistics.h"
#include "media/movie/ffmpeg/track.h"
#include "media/movie/metadata/iso_date.h"
#include "media/movie/other/asset_message.h"
#include "media/movie/other/container_limits.h"
#include "workers/confinement/confinement.h"
#include "workers/greeting.h"
#include "workers/message.h"
#include "workers/worker_process.h"

namespace media::movie {

namespace {

using Kind = ContainerAnswer::Kind;

// No coder is ever opened: what containers and the headers of packets state must do.
constexpr DemuxerLimits limits = {
    .containers = "matroska,webm,avi,mpeg,mpegts,mpegvideo,flv,asf,ogg,rm,mxf,nut",
    .codecs = "none",
    .bytes = containerLimits.bytes,
    .packets = containerLimits.packets,
    .streams = containerLimits.streams,
    .largestAllocation = containerLimits.largestAllocation,
};

model::MediaAsset assetOf(const AVFormatContext& context) {
  model::MediaAsset asset;
  for (const AVStream* stream : std::span(context.streams, context.nb_streams)) {
    if (auto track = trackOfStream(context, *stream)) asset.tracks.push_back(std::move(*track));
  }
  asset.commonMetadata = commonMetadataOf(context.metadata);
  if (context.duration > 0) asset.duration = static_cast<double>(context.duration) / AV_TIME_BASE;
  for (const auto& item : asset.commonMetadata) {
    if (item.commonKey == "creationDate" && item.value)
      asset.creationDate = parseIsoDate(*item.value->asString());
  }
  return asset;
}

ContainerAnswer read(io::ByteSource& source) {
  Demuxer::Refusal refusal{};
  const auto demuxer = Demuxer::open(source, limits, &refusal);
  if (!demuxer) {
    const bool isTooMuch = refusal == Demuxer::Refusal::tooMuch;
    return {.kind = isTooMuch ? Kind::tooMuch : Kind::none};
  }
  completeFromHeaders(*demuxer);
  completeStatistics(*demuxer);
  ContainerAnswer answer{.asset = assetOf(demuxer->context())};
  if (answer.asset.tracks.empty()) return answer;
  answer.kind = Kind::asset;
  if (demuxer->areBytesCut()) answer.note(Cut::bytes);
  if (demuxer->arePacketsCut()) answer.note(Cut::packets);
  return answer;
}

std::vector<std::uint8_t> answerTo(workers::Message order) {
  try {
    io::FileSource source(std::move(order.descriptor));
    return bytesOfAnswer(read(source));
  } catch (const std::bad_alloc&) {
    return bytesOfAnswer({.kind = Kind::tooMuch});
  }
}

void serve() {
  constexpr int socket = workers::socketOfWorker;
  const std::string refused = workers::confine({.memory = containerLimits.memory});
  bool isConnected = workers::sendMessage(socket, workers::greetingOf(refused));
  while (isConnected) {
    auto order = workers::receiveMessage(socket, readOrder.size(), workers::Guests::taken);
    isConnected = order && workers::sendMessage(socket, answerTo(*std::move(order)));
  }
}

}  // namespace

}  // namespace media::movie

// At once: what runs at a usual end may do what the process may not any more.
int main() {
  media::movie::serve();
  _exit(0);
}
