// SPDX-License-Identifier: MIT
//
// A byte source opened by FFmpeg, which reads through the source only: it opens no file and no
// network address of its own, knows the containers of a short list only, is silent, and is stopped
// when it takes too long.
#pragma once

extern "C" {
#include <libavformat/avformat.h>
}

#include <chrono>
#include <memory>

#include "io/byte_source.h"

namespace media::movie {

// How FFmpeg may read.
struct DemuxerLimits {
  const char* containers;             // FFmpeg's names, parted by commas
  std::chrono::milliseconds time;     // from opening to the last packet
  std::size_t largestAllocation = 0;  // bytes
};

class Demuxer {
 public:
  // Opens the source and looks at its streams. Null where FFmpeg knows nothing of it. `name` is a
  // hint to the kind of the file. REQUIRES: the source outlives the demuxer.
  static std::unique_ptr<Demuxer> open(const char* name, io::ByteSource& source,
                                       const DemuxerLimits& limits);
  ~Demuxer();
  Demuxer(const Demuxer&) = delete;
  Demuxer& operator=(const Demuxer&) = delete;

  AVFormatContext& context() { return *_context; }
  // Whether the time is over. Reading ends by itself then; decoding has to ask.
  bool isLate() const { return std::chrono::steady_clock::now() > _deadline; }

 private:
  Demuxer(io::ByteSource& source, const DemuxerLimits& limits);
  bool openInput(const char* name, const char* containers);

  static int read(void* opaque, std::uint8_t* bytes, int length);
  static std::int64_t seek(void* opaque, std::int64_t offset, int whence);
  static int isInterrupted(void* opaque);

  io::ByteSource& _source;
  std::uint64_t _offset = 0;
  std::chrono::steady_clock::time_point _deadline;
  AVIOContext* _io = nullptr;
  AVFormatContext* _context = nullptr;
};

}  // namespace media::movie
