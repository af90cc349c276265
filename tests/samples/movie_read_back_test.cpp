// SPDX-License-Identifier: MIT
//
// The videos of the library, read by the project's own reader.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "media/movie/media_source.h"
#include "samples/library/items.h"
#include "samples/movies/movie_metadata.h"
#include "samples/movies/small_movies.h"
#include "tests/samples/sample_files.h"

namespace samples {
namespace {

using model::MediaAsset;
using model::Track;

// The asset of a file; `bytesRead`, if given, receives how many bytes it took.
MediaAsset assetOf(const Movie& movie, std::uint64_t* bytesRead = nullptr) {
  const auto source = io::FileSource::open(libraryPath(movie.path));
  if (!source) {
    ADD_FAILURE() << source.error().reason;
    return {};
  }
  const auto asset = media::movie::copyAsset(**source);
  if (bytesRead != nullptr) *bytesRead = (*source)->bytesRead();
  if (asset && *asset) return (*asset)->asset;
  ADD_FAILURE() << (asset ? "no movie" : asset.error().reason);
  return {};
}

Track trackOf(const MediaAsset& asset, const std::string& mediaType) {
  for (const Track& track : asset.tracks)
    if (track.mediaType == mediaType) return track;
  ADD_FAILURE() << "no track of type " << mediaType;
  return {};
}

std::string commonText(const MediaAsset& asset, const std::string& key) {
  for (const model::MetadataItem& item : asset.commonMetadata)
    if (item.commonKey == key && item.value && item.value->asString() != nullptr)
      return *item.value->asString();
  return "";
}

model::AffineTransform rotation(const Movie& movie) {
  const double width = movie.width;
  const double height = movie.height;
  switch (movie.rotation) {
    case 90:
      return {0, 1, -1, 0, height, 0};
    case 180:
      return {-1, 0, 0, -1, width, height};
    case 270:
      return {0, -1, 1, 0, 0, width};
    default:
      return {};
  }
}

TEST(MovieReadBack, FindsSizeAndRotationOfEveryVideo) {
  for (const Movie& movie : allMovies()) {
    SCOPED_TRACE(movie.path);
    const Track video = trackOf(assetOf(movie), "vide");
    EXPECT_EQ(video.naturalSize, (model::Size{double(movie.width), double(movie.height)}));
    EXPECT_EQ(video.preferredTransform, rotation(movie));
  }
}

TEST(MovieReadBack, FindsCodecsAndRates) {
  for (const Movie& movie : allMovies()) {
    SCOPED_TRACE(movie.path);
    const Track video = trackOf(assetOf(movie), "vide");
    ASSERT_EQ(video.formatDescriptions.size(), 1u);
    EXPECT_EQ(video.formatDescriptions.front().mediaSubType, movie.codec == VideoCodec::hevc
                                                                 ? model::fourCharCode("hvc1")
                                                                 : model::fourCharCode("avc1"));
    EXPECT_NEAR(video.nominalFrameRate, movie.framesPerSecond, movie.framesPerSecond * 0.005);
    EXPECT_NEAR(video.duration, double(movie.frames) / movie.framesPerSecond, 0.01);
    ASSERT_TRUE(video.minFrameDuration.has_value());
    EXPECT_NEAR(*video.minFrameDuration, 1.0 / movie.framesPerSecond, 1e-4);
    EXPECT_GT(video.estimatedDataRate, 10000);
  }
}

TEST(MovieReadBack, FindsTheSound) {
  for (const Movie& movie : allMovies()) {
    if (movie.sound == SoundCodec::none) continue;
    SCOPED_TRACE(movie.path);
    const Track sound = trackOf(assetOf(movie), "soun");
    ASSERT_EQ(sound.formatDescriptions.size(), 1u);
    ASSERT_TRUE(sound.formatDescriptions.front().audio.has_value());
    const model::AudioStreamDescription& audio = *sound.formatDescriptions.front().audio;
    const bool pcm = movie.sound == SoundCodec::linearPcm;
    EXPECT_EQ(audio.formatID, pcm ? model::fourCharCode("lpcm") : model::fourCharCode("aac "));
    EXPECT_EQ(audio.sampleRate, 44100);
    EXPECT_EQ(audio.channelsPerFrame, 1u);
    EXPECT_EQ(audio.framesPerPacket, pcm ? 1u : 1024u);
    EXPECT_EQ(audio.bitsPerChannel, pcm ? 16u : 0u);
  }
}

TEST(MovieReadBack, FindsTimedMetadataInPhoneVideosOnly) {
  for (const Movie& movie : allMovies()) {
    SCOPED_TRACE(movie.path);
    std::size_t count = 0;
    for (const Track& track : assetOf(movie).tracks) count += track.mediaType == "meta" ? 1 : 0;
    const std::size_t expected = movie.livePhoto != nullptr ? 2 : 1;
    EXPECT_EQ(count, movie.brand == MovieBrand::quickTime ? expected : 0);
  }
}

TEST(MovieReadBack, FindsTheLocationWithAndWithoutAltitude) {
  for (const Movie& movie : allMovies()) {
    SCOPED_TRACE(movie.path);
    EXPECT_EQ(commonText(assetOf(movie), "location"),
              movie.place != nullptr ? locationText(*movie.place, movie.hasAltitude) : "");
  }
}

TEST(MovieReadBack, FindsWhatThePhoneTellsOfItself) {
  for (const Movie& movie : allMovies()) {
    if (movie.brand != MovieBrand::quickTime) continue;
    SCOPED_TRACE(movie.path);
    const MediaAsset asset = assetOf(movie);
    EXPECT_EQ(commonText(asset, "make"), movie.camera->make);
    EXPECT_EQ(commonText(asset, "model"), movie.camera->model);
    EXPECT_EQ(commonText(asset, "software"), movie.camera->software);
    EXPECT_EQ(commonText(asset, "identifier"), movie.livePhoto != nullptr ? movie.livePhoto : "");
    ASSERT_TRUE(asset.creationDate.has_value());
    EXPECT_EQ(*asset.creationDate, momentOf(movie.taken, movie.place));
  }
}

TEST(MovieReadBack, FindsTheTrackOfEverySmallMovie) {
  std::string found;
  for (const SmallMovie& movie : smallMovies()) {
    SCOPED_TRACE(movie.name);
    io::MemorySource source(movie.bytes);
    const auto file = media::movie::copyAsset(source);
    ASSERT_TRUE(file && *file);
    ASSERT_EQ((*file)->asset.tracks.size(), 1u);
    const Track& track = (*file)->asset.tracks.front();
    ASSERT_EQ(track.formatDescriptions.size(), 1u);
    if (const auto& audio = track.formatDescriptions.front().audio) {
      EXPECT_EQ(audio->channelsPerFrame, 1u);
    } else {
      EXPECT_EQ(track.naturalSize, (model::Size{640, 480}));
    }
    EXPECT_NEAR(track.duration, 0.5, 1e-9);
    found += track.mediaType + " " + (*file)->shortfall + "\n";
  }
  EXPECT_EQ(found, "pict \nsoun \nvide truncated movie\n");
}

TEST(MovieReadBack, NeedsLittleOfTheLargeFile) {
  for (const Movie& movie : allMovies()) {
    if (movie.fileSize == 0) continue;
    std::uint64_t bytesRead = 0;
    assetOf(movie, &bytesRead);
    EXPECT_LT(bytesRead, 131072u) << movie.path;
  }
}

}  // namespace
}  // namespace samples
