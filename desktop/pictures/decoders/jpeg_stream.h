// SPDX-License-Identifier: MIT
//
// libjpeg-turbo over a byte source: header, then rows. Its errors, which it reports by a jump over
// C frames, end here as values.
#pragma once

// jpeglib.h needs what <cstdio> declares.
// clang-format off
#include <cstdio>
#include <jpeglib.h>
// clang-format on

#include <csetjmp>
#include <span>
#include <string>
#include <vector>

#include "desktop/pictures/pixels/target_size.h"
#include "io/byte_source.h"
#include "model/result.h"

namespace desktop::pictures {

class JpegStream {
 public:
  // REQUIRES: the source outlives the stream.
  explicit JpegStream(io::ByteSource& source);
  ~JpegStream();
  JpegStream(const JpegStream&) = delete;
  JpegStream& operator=(const JpegStream&) = delete;

  // Reads up to the first scan. False where that is not possible.
  bool readHeader();
  // The size of the whole image. REQUIRES: the header was read.
  PixelSize size() const;
  // The ICC profile; empty where there is none.
  std::vector<std::uint8_t> profile();

  // Starts decoding at the smallest of 1/8, 1/4, 1/2 and 1 that covers the target; none where that
  // is not possible. Returns the size that rows come in.
  bool start(PixelSize target);
  PixelSize scaledSize() const;
  // The next row, premultiplied; empty at the end and where decoding fails. Borrowed: valid until
  // the next call. Where the file is cut off, the rest is gray.
  std::span<const std::uint32_t> nextRow();

  // Why the last call failed.
  model::Error error() const { return {_reason}; }

 private:
  struct Source : jpeg_source_mgr {
    io::ByteSource* bytes;
    std::uint64_t offset;
    std::vector<JOCTET> buffer;
  };

  template <typename Function>
  bool guarded(Function function);
  bool isTooLarge();
  void rgbOfCmyk();

  static void fail(j_common_ptr info);
  static void checkScans(j_common_ptr info);
  static boolean fill(j_decompress_ptr info);
  static void skip(j_decompress_ptr info, long count);

  jpeg_decompress_struct _info{};
  jpeg_error_mgr _errors{};
  jpeg_progress_mgr _progress{};
  Source _source{};
  std::jmp_buf _jump{};
  std::string _reason;
  std::vector<std::uint32_t> _row;
};

}  // namespace desktop::pictures
