// SPDX-License-Identifier: MIT
#include "media/movie/boxes/compressed_movie.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include "tests/media/movie/reading.h"

namespace media::movie {
namespace {

Bytes deflated(const Bytes& bytes) {
  uLongf length = compressBound(bytes.size());
  Bytes packed(length);
  compress(packed.data(), &length, bytes.data(), bytes.size());
  packed.resize(length);
  return packed;
}

Bytes compressedMovie(std::string_view method, std::uint64_t size, const Bytes& content) {
  return box("moov", {box("cmov", {box("dcom", Writer().text(method)),
                                   box("cmvd", Writer().u32(size).bytes(content))})});
}

Bytes header() {
  return box(
      "moov",
      {movieHeader(600, 1200),
       track({.header = trackHeader(4, 1200, {1, 0, 0, 1, 0, 0}, 0, 0), .handlerType = "text"})});
}

TEST(CompressedMovie, IsReadAsIfItWereNot) {
  const Reading reading = readBytes(compressedMovie("zlib", header().size(), deflated(header())));
  EXPECT_EQ(reading.outcome, "asset");
  EXPECT_EQ(reading.asset, readBytes(header()).asset);
  ASSERT_EQ(reading.asset.tracks.size(), 1U);
  EXPECT_EQ(reading.asset.tracks[0].trackID, 4);
}

TEST(CompressedMovie, TellsWhatIsWrong) {
  Bytes bad = deflated(header());
  bad[bad.size() / 2] ^= 0x55;
  const std::string damaged = "error: damaged compressed movie header";
  const struct {
    Bytes movie;
    std::string outcome;
  } cases[] = {
      {compressedMovie("rle ", header().size(), deflated(header())),
       "error: movie header compressed in an unknown way"},
      {compressedMovie("zlib", header().size(), bad), damaged},
      {compressedMovie("zlib", header().size() + 1, deflated(header())), damaged},
      {compressedMovie("zlib", 0xFFFFFFFF, deflated(header())), damaged},
      {compressedMovie("zlib", 5, deflated(header())), damaged},
      {compressedMovie("zlib", 0, {}), damaged},
      {box("moov", {box("cmov", Bytes())}), damaged},
      {compressedMovie("zlib", 100, deflated(Bytes(100, 0))), damaged},
  };
  for (std::size_t index = 0; index < std::size(cases); ++index)
    EXPECT_EQ(readBytes(cases[index].movie).outcome, cases[index].outcome) << index;
}

}  // namespace
}  // namespace media::movie
