// SPDX-License-Identifier: MIT
//
// A byte source opened by FFmpeg, which reads through the source only: it opens no file and no
// network address of its own, knows the containers of a short list only, is silent, and reads so
// many bytes and packets and no more.
#pragma once

extern "C" {
#include <libavformat/avformat.h>
}

#include <memory>

#include "io/byte_source.h"

namespace media::movie {

// How FFmpeg may read. What is cut depends on the file alone, never on how fast it is read.
struct DemuxerLimits {
  const char* containers;             // FFmpeg's names, parted by commas
  const char* codecs = nullptr;       // that may be opened to learn more of a stream; null for all
  std::uint64_t bytes;                // of the source, those read twice counted twice
  int packets;                        // that are looked at to learn what the streams are
  int streams;                        // a file of more is refused
  std::size_t largestAllocation = 0;  // bytes
};

class Demuxer {
 public:
  // Why nothing was opened.
  enum class Refusal { unknown, tooMuch };

  // Opens the source and looks at its streams. Null where FFmpeg knows nothing of it, or where
  // there are too many streams or too little memory: `refusal` says which. REQUIRES: the source
  // outlives the demuxer.
  static std::unique_ptr<Demuxer> open(io::ByteSource& source, const DemuxerLimits& limits,
                                       Refusal* refusal = nullptr);
  ~Demuxer();
  Demuxer(const Demuxer&) = delete;
  Demuxer& operator=(const Demuxer&) = delete;

  AVFormatContext& context() { return *_context; }

  // The next packet of any stream; false at the end, or where a limit is met.
  bool readPacket(AVPacket& packet);
  // How many were read so.
  int packetsRead() const { return _packetsRead; }

  // Matroska or WebM: the packets that were looked at are read again from memory, and none is lost.
  bool isMatroska() const;

  // Whether a limit kept FFmpeg from reading on.
  bool areBytesCut() const { return _areBytesCut; }
  bool arePacketsCut() const { return _packets > _limits.packets; }

 private:
  Demuxer(io::ByteSource& source, const DemuxerLimits& limits) : _source(source), _limits(limits) {}
  bool openInput(Refusal& refusal);

  static int read(void* opaque, std::uint8_t* bytes, int length);
  static std::int64_t seek(void* opaque, std::int64_t offset, int whence);
  static int countPacket(void* opaque);

  io::ByteSource& _source;
  const DemuxerLimits _limits;
  std::uint64_t _offset = 0;
  std::uint64_t _bytes = 0;  // read
  int _packets = 0;
  int _packetsRead = 0;
  bool _areBytesCut = false;
  AVIOContext* _io = nullptr;
  AVFormatContext* _context = nullptr;
};

}  // namespace media::movie
