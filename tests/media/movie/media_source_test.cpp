// SPDX-License-Identifier: MIT
#include "media/movie/media_source.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/media/movie/asset_text.h"
#include "tests/media/movie/reading.h"
#include "tests/support/avi_builder.h"

namespace media::movie {
namespace {

// Bytes that count a read of any coded sample.
class WatchedSource : public io::ByteSource {
 public:
  explicit WatchedSource(Bytes bytes) : _bytes(std::move(bytes)) {}
  std::uint64_t size() const override { return _bytes.size(); }
  std::size_t samplesRead() const { return _samplesRead; }

 private:
  model::Result<std::size_t> doReadAt(std::uint64_t offset, std::span<std::uint8_t> into) override {
    constexpr std::uint8_t sampleByte = 0xEE;  // of codedSamples()
    const std::size_t length =
        std::min(into.size(), _bytes.size() - static_cast<std::size_t>(offset));
    std::copy_n(_bytes.begin() + static_cast<std::ptrdiff_t>(offset), length, into.begin());
    _samplesRead += static_cast<std::size_t>(std::ranges::count(into.first(length), sampleByte));
    return length;
  }

  Bytes _bytes;
  std::size_t _samplesRead = 0;
};

TEST(MediaSource, NeverReadsCodedSamplesAndLittleElse) {
  for (const Bytes& movie : {phoneMovie(), webMovie()}) {
    ASSERT_EQ(std::ranges::count(Bytes(movie.end() - 90000, movie.end()), 0xEE) > 0 ||
                  std::ranges::count(Bytes(movie.begin(), movie.begin() + 90000), 0xEE) > 0,
              true);
    WatchedSource source(movie);
    const auto asset = copyAsset(source);
    ASSERT_TRUE(asset && *asset);
    EXPECT_EQ(source.samplesRead(), 0U);
    EXPECT_LE(source.bytesRead(), 8U * 1024);
  }
}

TEST(MediaSource, ReadsOnlyTheNeededTablesOfALongMovie) {
  const std::uint32_t samples = 2000000;
  const Bytes offsets = fullBox("stco", 0, Bytes(4 + 4 * std::size_t{samples}, 0));
  const Bytes composition = fullBox("ctts", 0, Bytes(4 + 8 * std::size_t{samples}, 0));
  const Bytes trak = track({.header = trackHeader(1, 1000, {1, 0, 0, 1, 0, 0}, 640, 480),
                            .mediaHeader = mediaHeader(1000, 1000),
                            .handlerType = "vide",
                            .descriptions = sampleDescriptions({videoEntry({})}),
                            .times = joined({composition, timeToSample({{samples, 1}})}),
                            .sizes = joined({offsets, constantSampleSize(9, samples)})});
  WatchedSource source(
      joined({fileType("isom"), box("moov", {movieHeader(1000, 1000), trak}), codedSamples(10)}));
  const auto asset = copyAsset(source);
  ASSERT_TRUE(asset && *asset);
  EXPECT_EQ((*asset)->asset.tracks[0].estimatedDataRate, 8.0F * 9 * samples);
  EXPECT_LE(source.bytesRead(), 128U * 1024);
}

TEST(MediaSource, PassesOnWhatTheSystemSaysOfAFailedRead) {
  const Bytes movie = phoneMovie();
  io::FailingSource broken(movie, movie.size() - 1000, io::FailingSource::Failure::error);
  const auto failed = copyAsset(broken);
  ASSERT_FALSE(failed);
  EXPECT_FALSE(failed.error().reason.empty());

  io::FailingSource shrinking(movie, movie.size() - 1000, io::FailingSource::Failure::shortRead);
  const auto shrunk = copyAsset(shrinking);
  ASSERT_FALSE(shrunk);
  EXPECT_EQ(shrunk.error().reason, "truncated while it was read");
}

TEST(MediaSource, ReadsAMovieFileWithoutFfmpeg) {
  const auto movie = readFile("web.mp4", webMovie());
  ASSERT_TRUE(movie && *movie);
  EXPECT_EQ((*movie)->asset.tracks.size(), 2U);
}

TEST(MediaSource, LeavesFilesAloneThatAreNoVideo) {
  const Bytes others[] = {
      Writer().text("some text"),
      Writer().text("RIFF").u32(4).text("WEBPVP8 "),
      Writer().text("\xFF\xD8\xFF\xE0").zeros(400),
      Writer().text("\x1A\x45\xDF\xA3 but no Matroska behind it").zeros(4000),
  };
  for (const Bytes& bytes : others) {
    const auto movie = readFile("file", bytes);
    ASSERT_TRUE(movie);
    EXPECT_FALSE(*movie) << std::string(bytes.begin(), bytes.begin() + 9);
  }
}

TEST(MediaSource, ReadsAnotherContainerThroughFfmpeg) {
  const auto movie = readFile("small.avi", smallAvi());
  ASSERT_TRUE(movie);
#ifdef HAS_CONTAINER_READER
  ASSERT_TRUE(*movie);
  EXPECT_EQ((*movie)->shortfall, "");
  EXPECT_EQ(assetText((*movie)->asset), R"(track = 1 vide
  naturalSize = 16 x 8
  preferredTransform = 1 0 0 1 0 0
  duration = 0.4
  estimatedDataRate = 87160
  nominalFrameRate = 25
  minFrameDuration = 0.04
  description = vide/raw  16 x 8
    CVFieldCount = 1
    Depth = 24
    FormatName = "'raw '"
    FullRangeVideo = 0
track = 2 soun
  naturalSize = 0 x 0
  preferredTransform = 1 0 0 1 0 0
  duration = 0.4
  estimatedDataRate = 256000
  nominalFrameRate = 8000
  minFrameDuration = (none)
  description = soun/lpcm 0 x 0
    audio = 8000 lpcm 12 4 1 4 2 16
title = "A small film"
asset duration = 0.4
asset creationDate = (none)
)");
#else
  EXPECT_FALSE(*movie);
#endif
}

TEST(MediaSource, GivesNoAssetForADamagedOtherContainer) {
  const Bytes whole = smallAvi();
  for (const std::size_t length : {12U, 60U, 200U, 300U}) {
    const auto movie = readFile(
        "cut.avi", Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
    ASSERT_TRUE(movie) << length;
    EXPECT_TRUE(!*movie || !(*movie)->asset.tracks.empty()) << length;
  }
}

}  // namespace
}  // namespace media::movie
