// SPDX-License-Identifier: MIT
//
// The module's one function. FFmpeg reads through our source only: it opens no file and no network
// address of its own, knows the containers of a short list only, is silent, and is stopped when it
// takes too long.
extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/log.h>
#include <libavutil/mem.h>
}

#include <algorithm>
#include <chrono>
#include <cmath>
#include <exception>
#include <memory>
#include <span>

#include "desktop/avfoundation/ffmpeg/metadata.h"
#include "desktop/avfoundation/ffmpeg/track.h"
#include "desktop/avfoundation/iso_date.h"
#include "desktop/io/byte_source.h"

namespace desktop::avfoundation {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto longestTime = std::chrono::milliseconds(500);
constexpr std::size_t largestAllocation = 32 << 20;  // bytes
constexpr int bufferSize = 64 << 10;                 // bytes
constexpr char containers[] = "matroska,webm,avi,mpeg,mpegts,mpegvideo,flv,asf,ogg,rm,mxf,nut";

// Where FFmpeg reads from, and until when.
struct Input {
  ByteSource& source;
  std::uint64_t offset = 0;
  Clock::time_point deadline = Clock::now() + longestTime;

  bool isLate() const { return Clock::now() > deadline; }
};

int readInput(void* opaque, std::uint8_t* bytes, int length) {
  auto& input = *static_cast<Input*>(opaque);
  if (length <= 0 || input.isLate()) return AVERROR_EXIT;
  const auto count = input.source.readAt(input.offset, {bytes, static_cast<std::size_t>(length)});
  if (!count) return AVERROR(EIO);
  if (*count == 0) return AVERROR_EOF;
  input.offset += *count;
  return static_cast<int>(*count);
}

std::int64_t seekInput(void* opaque, std::int64_t offset, int whence) {
  auto& input = *static_cast<Input*>(opaque);
  const auto size = static_cast<std::int64_t>(input.source.size());
  if ((whence & AVSEEK_SIZE) != 0) return size;
  std::int64_t target = offset;
  const int base = whence & ~AVSEEK_FORCE;
  if (base == SEEK_CUR) target += static_cast<std::int64_t>(input.offset);
  if (base == SEEK_END) target += size;
  if (target < 0) return AVERROR(EINVAL);
  input.offset = static_cast<std::uint64_t>(target);
  return target;
}

int isInterrupted(void* opaque) {
  return static_cast<Input*>(opaque)->isLate() ? 1 : 0;
}

struct FreeIo {
  void operator()(AVIOContext* io) const {
    av_freep(&io->buffer);
    avio_context_free(&io);
  }
};
struct CloseFormat {
  void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
};

// The options of opening; FFmpeg takes out what it uses.
class Options {
 public:
  Options() {
    av_dict_set(&_options, "format_whitelist", containers, 0);
    av_dict_set(&_options, "protocol_whitelist", "none", 0);
    av_dict_set(&_options, "probesize", "1000000", 0);        // bytes
    av_dict_set(&_options, "formatprobesize", "65536", 0);    // bytes
    av_dict_set(&_options, "analyzeduration", "2000000", 0);  // microseconds
  }
  ~Options() { av_dict_free(&_options); }
  Options(const Options&) = delete;
  Options& operator=(const Options&) = delete;

  AVDictionary** get() { return &_options; }

 private:
  AVDictionary* _options = nullptr;
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

std::unique_ptr<AVFormatContext, CloseFormat> open(const char* name, Input& input,
                                                   AVIOContext* io) {
  AVFormatContext* context = avformat_alloc_context();
  if (context == nullptr) return nullptr;
  context->pb = io;
  context->interrupt_callback = {isInterrupted, &input};
  Options options;
  // A failed opening frees the context itself.
  if (avformat_open_input(&context, name, nullptr, options.get()) != 0) return nullptr;
  return std::unique_ptr<AVFormatContext, CloseFormat>(context);
}

bool read(const char* name, ByteSource& source, model::MediaAsset& asset) {
  av_log_set_level(AV_LOG_QUIET);
  av_max_alloc(largestAllocation);
  Input input{source};
  auto* buffer = static_cast<std::uint8_t*>(av_malloc(bufferSize));
  if (buffer == nullptr) return false;
  const std::unique_ptr<AVIOContext, FreeIo> io(
      avio_alloc_context(buffer, bufferSize, 0, &input, readInput, nullptr, seekInput));
  if (!io) {
    av_free(buffer);
    return false;
  }
  const auto context = open(name, input, io.get());
  if (!context || avformat_find_stream_info(context.get(), nullptr) < 0) return false;
  asset = assetOf(*context);
  return !asset.tracks.empty();
}

}  // namespace

}  // namespace desktop::avfoundation

extern "C" __attribute__((visibility("default"))) int desktopReadAssetWithFfmpeg(
    const char* name, desktop::ByteSource* source, model::MediaAsset* asset) {
  try {
    return desktop::avfoundation::read(name, *source, *asset) ? 0 : 1;
  } catch (const std::exception&) {
    return 1;
  }
}
