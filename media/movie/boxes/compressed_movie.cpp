// SPDX-License-Identifier: MIT
#include "media/movie/boxes/compressed_movie.h"

#include <zlib.h>

namespace media::movie {

namespace {

using io::ByteOrder::big;

model::Error damaged() {
  return {"damaged compressed movie header"};
}

}  // namespace

model::Result<std::vector<std::uint8_t>> inflateMovie(MovieWalk& walk, const io::IsoBox& box) {
  const auto method = io::findBox(walk.reader, box.payload, model::fourCharCode("dcom"));
  const auto content = io::findBox(walk.reader, box.payload, model::fourCharCode("cmvd"));
  if (!method || !content) return damaged();
  const io::ByteView head = headOfBox(walk, *method, 4);
  if (head.u32(0, big) != model::fourCharCode("zlib"))
    return model::Error{"movie header compressed in an unknown way"};
  const auto packed = io::boxBytes(walk.reader, *content, limits.inflatedMovieBytes);
  if (!packed) return damaged();
  const std::uint32_t size = packed->u32(0, big).value_or(0);
  if (size > limits.inflatedMovieBytes) return damaged();
  std::vector<std::uint8_t> movie(size);
  uLongf length = movie.size();
  const auto input = packed->from(4).bytes();
  const int status = uncompress(movie.data(), &length, input.data(), input.size());
  if (status != Z_OK || length != movie.size()) return damaged();
  return movie;
}

}  // namespace media::movie
