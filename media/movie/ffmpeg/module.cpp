// SPDX-License-Identifier: MIT
//
// The module's one function.
#include <exception>
#include <span>

#include "media/movie/ffmpeg/demuxer.h"
#include "media/movie/ffmpeg/metadata.h"
#include "media/movie/ffmpeg/track.h"
#include "media/movie/metadata/iso_date.h"

namespace media::movie {

namespace {

constexpr DemuxerLimits limits = {
    .containers = "matroska,webm,avi,mpeg,mpegts,mpegvideo,flv,asf,ogg,rm,mxf,nut",
    .time = std::chrono::milliseconds(500),
    .largestAllocation = 32 << 20,
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

bool read(const char* name, io::ByteSource& source, model::MediaAsset& asset) {
  const auto demuxer = Demuxer::open(name, source, limits);
  if (!demuxer) return false;
  asset = assetOf(demuxer->context());
  return !asset.tracks.empty();
}

}  // namespace

}  // namespace media::movie

extern "C" __attribute__((visibility("default"))) int desktopReadAssetWithFfmpeg(
    const char* name, io::ByteSource* source, model::MediaAsset* asset) {
  try {
    return media::movie::read(name, *source, *asset) ? 0 : 1;
  } catch (const std::exception&) {
    return 1;
  }
}
