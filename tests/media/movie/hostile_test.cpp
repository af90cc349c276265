// SPDX-License-Identifier: MIT
//
// Movies made to hurt: every reader is asked to end quickly, without a crash and without much
// memory, whatever it makes of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/media/movie/reading.h"
#include "tests/support/avi_builder.h"

namespace media::movie {
namespace {

Bytes smallMovie() {
  const Bytes metadata = quickTimeMetadata(
      {{"com.apple.quicktime.make", "Apple"}, {"com.apple.quicktime.model", "iPhone"}});
  const Bytes userData = box("udta", {userDataText("\xa9xyz", 0x15C7, "+51.4169-000.0806/")});
  return oneTrackMovie({.brand = "qt  ",
                        .entry = videoEntry({.boxes = box("pasp", Writer().u32(1).u32(1))}),
                        .times = timeToSample({{3, 20}}),
                        .sizes = sampleSizes({1, 2, 3}),
                        .edits = editList(60),
                        .more = userData,
                        .movieBoxes = metadata});
}

// What a cut movie says of a track is what the whole one says, or nothing.
void expectNothingFalse(const model::Track& track, const model::Track& whole) {
  EXPECT_EQ(track.trackID, whole.trackID);
  EXPECT_EQ(track.mediaType, whole.mediaType);
  EXPECT_EQ(track.preferredTransform, whole.preferredTransform);
  EXPECT_EQ(track.naturalSize, whole.naturalSize);
  EXPECT_EQ(track.duration, whole.duration);
  if (track.nominalFrameRate != 0) {
    EXPECT_EQ(track.nominalFrameRate, whole.nominalFrameRate);
  }
  if (track.estimatedDataRate != 0) {
    EXPECT_EQ(track.estimatedDataRate, whole.estimatedDataRate);
  }
  if (track.minFrameDuration) {
    EXPECT_EQ(track.minFrameDuration, whole.minFrameDuration);
  }
  if (!track.formatDescriptions.empty()) {
    EXPECT_EQ(track.formatDescriptions, whole.formatDescriptions);
  }
}

TEST(HostileMovie, CutAtEveryByteSaysWhatStandsBeforeTheCutAndThatItIsCut) {
  const Bytes whole = smallMovie();
  const model::MediaAsset asset = readBytes(whole).asset;
  EXPECT_EQ(readBytes(whole).shortfall, "");
  int tracks = 0;
  for (std::size_t length = 0; length < whole.size(); ++length) {
    SCOPED_TRACE(length);
    const Reading reading =
        readBytes(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
    if (reading.outcome != "asset") continue;
    EXPECT_EQ(reading.shortfall, "truncated movie");
    EXPECT_EQ(reading.asset.duration, asset.duration);
    for (const model::Track& track : reading.asset.tracks)
      expectNothingFalse(track, asset.tracks.front());
    for (const model::MetadataItem& item : reading.asset.commonMetadata)
      EXPECT_EQ(std::ranges::count(asset.commonMetadata, item), 1);
    tracks += static_cast<int>(reading.asset.tracks.size());
  }
  EXPECT_GT(tracks, 200);
}

TEST(HostileMovie, HeaderCutAtEveryByteBehindItsSizeIsReadAsFarAsItGoes) {
  const Bytes type = fileType("qt  ");
  const Bytes whole = smallMovie();
  const Bytes header(whole.begin() + static_cast<std::ptrdiff_t>(type.size()) + 8, whole.end());
  for (std::size_t length = 0; length <= header.size(); ++length) {
    const Bytes part(header.begin(), header.begin() + static_cast<std::ptrdiff_t>(length));
    EXPECT_EQ(readBytes(joined({type, box("moov", part)})).outcome, "asset") << length;
  }
}

TEST(HostileMovie, AnySizeFieldMayHoldAnything) {
  const Bytes whole = smallMovie();
  int read = 0;
  for (const std::uint32_t value : {0U, 1U, 7U, 8U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    for (std::size_t offset = 0; offset + 4 <= whole.size(); ++offset) {
      Bytes bytes = whole;
      for (int index = 0; index < 4; ++index)
        bytes[offset + static_cast<std::size_t>(index)] =
            static_cast<std::uint8_t>(value >> (24 - 8 * index));
      if (readBytes(bytes).outcome == "asset") ++read;
    }
  }
  EXPECT_GT(read, 0);
}

TEST(HostileMovie, RandomDamageIsSurvived) {
  const unsigned seed = 20190724;
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  for (const Bytes& whole : {phoneMovie(), webMovie(), smallMovie()}) {
    int read = 0;
    for (int round = 0; round < 300; ++round) {
      Bytes bytes = whole;
      for (int change = 0; change < 8; ++change)
        bytes[random() % bytes.size()] = static_cast<std::uint8_t>(random());
      if (readBytes(bytes).outcome == "asset") ++read;
    }
    EXPECT_GT(read, 0);
  }
}

TEST(HostileMovie, NestingThousandsDeepIsNotFollowed) {
  for (const std::string_view type : {"moov", "trak", "mdia", "udta", "meta", "ilst", "cmov"}) {
    Writer front;
    constexpr std::uint32_t depth = 20000;
    for (std::uint32_t level = depth; level > 0; --level)
      front.u32(std::uint64_t{8} * level).text(type);
    const Reading reading = readBytes(joined({fileType("qt  "), box("moov", front)}));
    EXPECT_LE(reading.asset.tracks.size(), 1U) << type;
  }
}

TEST(HostileMovie, BoxesThatReachBeyondTheirParentsAreCutToIt) {
  const Bytes trak = Writer()
                         .u32(0x7FFFFFFF)
                         .text("trak")
                         .bytes(trackHeader(3, 1, {1, 0, 0, 1, 0, 0}, 1, 1))
                         .u32(0x7FFFFFF0)
                         .text("mdia")
                         .bytes(handler("vide"));
  const Reading reading =
      readBytes(joined({fileType("qt  "), box("moov", trak), codedSamples(50), box("trak", trak)}));
  ASSERT_EQ(reading.asset.tracks.size(), 1U);
  EXPECT_EQ(reading.asset.tracks[0].trackID, 3);
}

TEST(HostileMovie, MillionsOfBoxesAreNotWalked) {
  Writer boxes;
  for (int index = 0; index < 400000; ++index) boxes.u32(8).text("trak");
  EXPECT_EQ(readBytes(joined({fileType("qt  "), box("moov", boxes)})).outcome, "asset");
  EXPECT_EQ(readBytes(joined({fileType("qt  "), box("moov", Bytes()), boxes})).outcome, "asset");
  const Bytes same = boxes;
  const Bytes list =
      joined({fullBox("hdlr", 0, Writer().u32(0).text("mdir").zeros(9)), box("ilst", same)});
  EXPECT_EQ(
      readBytes(joined({fileType("qt  "), box("moov", box("udta", {box("meta", list)}))})).outcome,
      "asset");
}

TEST(HostileMovie, ThousandsOfTracksAndDescriptionsAreBounded) {
  const std::vector<Bytes> entries(2000, videoEntry({}));
  const Bytes trak = track({.header = trackHeader(1, 1, {1, 0, 0, 1, 0, 0}, 1, 1),
                            .mediaHeader = mediaHeader(600, 600),
                            .handlerType = "vide",
                            .descriptions = sampleDescriptions(entries)});
  Bytes traks;
  for (int index = 0; index < 500; ++index) traks.insert(traks.end(), trak.begin(), trak.end());
  const Bytes movie = joined({fileType("qt  "), box("moov", traks)});
  const Reading reading = readBytes(movie);
  std::size_t descriptions = 0;
  for (const auto& read : reading.asset.tracks) descriptions += read.formatDescriptions.size();
  EXPECT_EQ(reading.asset.tracks.size(), 256U);
  EXPECT_EQ(reading.shortfall, "tracks left out: 244");
  EXPECT_LE(descriptions, 64U);
  EXPECT_GT(descriptions, 0U);
}

TEST(HostileMovie, LargePicturesInEveryTrackAreBounded) {
  const Bytes list =
      box("ilst", {box(std::string_view("\0\0\0\1", 4), dataBox(13, Bytes(3 << 20, 0xFF)))});
  const Bytes keys =
      fullBox("keys", 0, Writer().u32(1).u32(35).text("mdtacom.apple.quicktime.artwork"));
  const Bytes metadata =
      box("meta", {fullBox("hdlr", 0, Writer().u32(0).text("mdta").zeros(9)), keys, list});
  const Bytes trak = track({.header = trackHeader(1, 1, {1, 0, 0, 1, 0, 0}, 1, 1),
                            .handlerType = "text",
                            .more = metadata});
  const Bytes movie = joined({fileType("qt  "), box("moov", {trak, trak, trak, trak})});
  std::size_t pictures = 0;
  for (const auto& read : readBytes(movie).asset.tracks) pictures += read.commonMetadata.size();
  EXPECT_EQ(pictures, 2U);
}

TEST(HostileMovie, MillionsOfFragmentsAreBounded) {
  const Bytes header = box("moov", {movieHeader(600, 0), box("mvex", Bytes())});
  Writer fragments;
  for (int index = 0; index < 300000; ++index) fragments.u32(8).text("moof");
  EXPECT_EQ(readBytes(joined({fileType("iso5"), header, fragments})).outcome, "asset");
}

TEST(HostileMovie, GigabytesAreOnlyClaimed) {
  const Bytes huge = fullBox("stsz", 0, Writer().u32(0).u32(0xFFFFFFFF).u32(1));
  const Bytes keys = fullBox("keys", 0, Writer().u32(0xFFFFFFFF).u32(0xFFFFFFFF).text("mdta"));
  const Bytes metadata =
      box("meta", {fullBox("hdlr", 0, Writer().u32(0).text("mdta").zeros(9)), keys,
                   box("ilst", {box(std::string_view("\0\0\0\1", 4), dataBox(1, {'x'}))})});
  const Reading reading =
      readBytes(oneTrackMovie({.entry = videoEntry({}),
                               .times = fullBox("stts", 0, Writer().u32(0xFFFFFFFF)),
                               .sizes = huge,
                               .edits = box("edts", {fullBox("elst", 0, Writer().u32(0xFFFFFFFF))}),
                               .movieBoxes = metadata}));
  EXPECT_EQ(reading.outcome, "asset");
}

TEST(HostileMovie, DamageToAnotherContainerIsSurvived) {
  std::mt19937 random(7);
  const Bytes whole = smallAvi();
  for (int round = 0; round < 20; ++round) {
    Bytes bytes = whole;
    for (int change = 0; change < 12; ++change)
      bytes[12 + random() % (bytes.size() - 12)] = static_cast<std::uint8_t>(random());
    EXPECT_TRUE(readFile("damaged.avi", bytes)) << round;
  }
}

}  // namespace
}  // namespace media::movie
