// SPDX-License-Identifier: MIT
#include "media/movie/ffmpeg/demuxer.h"

extern "C" {
#include <libavutil/log.h>
#include <libavutil/mem.h>
}

#include <algorithm>
#include <string_view>

namespace media::movie {

namespace {

constexpr int bufferSize = 64 << 10;  // bytes

// The options of opening; FFmpeg takes out what it uses.
class Options {
 public:
  explicit Options(const DemuxerLimits& limits) {
    av_dict_set(&_options, "format_whitelist", limits.containers, 0);
    av_dict_set(&_options, "codec_whitelist", limits.codecs, 0);
    av_dict_set_int(&_options, "max_streams", limits.streams, 0);
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

}  // namespace

std::unique_ptr<Demuxer> Demuxer::open(io::ByteSource& source, const DemuxerLimits& limits,
                                       Refusal* refusal) {
  av_log_set_level(AV_LOG_QUIET);
  av_max_alloc(limits.largestAllocation);
  std::unique_ptr<Demuxer> demuxer(new Demuxer(source, limits));
  Refusal reason{};
  if (demuxer->openInput(reason)) return demuxer;
  if (refusal != nullptr) *refusal = reason;
  return nullptr;
}

Demuxer::~Demuxer() {
  avformat_close_input(&_context);
  if (_io != nullptr) av_freep(&_io->buffer);
  avio_context_free(&_io);
}

bool Demuxer::openInput(Refusal& refusal) {
  refusal = Refusal::tooMuch;
  auto* buffer = static_cast<std::uint8_t*>(av_malloc(bufferSize));
  if (buffer == nullptr) return false;
  _io = avio_alloc_context(buffer, bufferSize, 0, this, read, nullptr, seek);
  if (_io == nullptr) av_free(buffer);
  _context = avformat_alloc_context();
  if (_io == nullptr || _context == nullptr) return false;
  _context->pb = _io;
  _context->interrupt_callback = {countPacket, this};
  Options options(_limits);
  // Without a name, which would count for more than what is in the file. A failed opening frees
  // the context itself.
  int result = avformat_open_input(&_context, nullptr, nullptr, options.get());
  // Other packets that were looked at are dropped; who wants them reads what follows.
  if (result == 0 && _limits.codecs != nullptr && !isMatroska())
    _context->flags |= AVFMT_FLAG_NOBUFFER;
  if (result == 0) result = avformat_find_stream_info(_context, nullptr);
  // FFmpeg says so of too many streams too.
  if (result != AVERROR(ENOMEM)) refusal = Refusal::unknown;
  return result >= 0;
}

bool Demuxer::readPacket(AVPacket& packet) {
  const bool isThere = av_read_frame(_context, &packet) >= 0;
  if (isThere) ++_packetsRead;
  return isThere;
}

bool Demuxer::isMatroska() const {
  return std::string_view(_context->iformat->name).starts_with("matroska");
}

int Demuxer::read(void* opaque, std::uint8_t* bytes, int length) {
  auto& self = *static_cast<Demuxer*>(opaque);
  if (length <= 0) return AVERROR_EXIT;
  const std::uint64_t left = self._limits.bytes - self._bytes;
  if (left == 0) self._areBytesCut = true;
  const auto size = std::min(static_cast<std::uint64_t>(length), left);
  const auto count = self._source.readAt(self._offset, {bytes, static_cast<std::size_t>(size)});
  if (!count) return AVERROR(EIO);
  if (*count == 0) return AVERROR_EOF;
  self._offset += *count;
  self._bytes += *count;
  return static_cast<int>(*count);
}

std::int64_t Demuxer::seek(void* opaque, std::int64_t offset, int whence) {
  auto& self = *static_cast<Demuxer*>(opaque);
  const auto size = static_cast<std::int64_t>(self._source.size());
  if ((whence & AVSEEK_SIZE) != 0) return size;
  std::int64_t target = offset;
  const int base = whence & ~AVSEEK_FORCE;
  if (base == SEEK_CUR) target += static_cast<std::int64_t>(self._offset);
  if (base == SEEK_END) target += size;
  if (target < 0) return AVERROR(EINVAL);
  self._offset = static_cast<std::uint64_t>(target);
  return target;
}

// FFmpeg asks before each packet that it looks at whether it is to go on.
int Demuxer::countPacket(void* opaque) {
  auto& self = *static_cast<Demuxer*>(opaque);
  ++self._packets;
  return self.arePacketsCut() ? 1 : 0;
}

}  // namespace media::movie
