// SPDX-License-Identifier: MIT
#include "media/movie/other/asset_message.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "media/movie/other/container_limits.h"
#include "model/utf8.h"
#include "tests/support/kept_seed.h"

namespace media::movie {
namespace {

using Kind = ContainerAnswer::Kind;

model::Track videoTrack() {
  model::Track track;
  track.trackID = 1;
  track.mediaType = "vide";
  track.naturalSize = {640, 480};
  track.duration = 2.5;
  track.estimatedDataRate = 1000;
  track.nominalFrameRate = 25;
  track.minFrameDuration = 0.04;
  track.commonMetadata = {{"title", model::Value("left")}};
  model::FormatDescription& description = track.formatDescriptions.emplace_back();
  description.mediaType = model::fourCharCode("vide");
  description.width = 640;
  description.extensions = {{"Depth", 24},
                            {"FullRangeVideo", false},
                            {"Gamma", 2.2},
                            {"Atoms", model::Dictionary{{"avcC", model::Data{1, 2, 3}}}}};
  return track;
}

model::Track soundTrack() {
  model::Track track;
  track.trackID = 2;
  track.mediaType = "soun";
  track.duration = 2.5;
  model::FormatDescription& description = track.formatDescriptions.emplace_back();
  description.audio = model::AudioStreamDescription{.sampleRate = 8000, .channelsPerFrame = 2};
  return track;
}

ContainerAnswer sample() {
  ContainerAnswer answer{.kind = Kind::asset};
  answer.note(Cut::packets);
  answer.asset.tracks = {videoTrack(), soundTrack()};
  answer.asset.commonMetadata = {{"make", model::Value("a maker")}, {"title", model::Value("ä")}};
  answer.asset.duration = 2.5;
  answer.asset.creationDate = model::Date{1.5};
  return answer;
}

TEST(AssetMessage, SaysAllOfAnAsset) {
  const auto bytes = bytesOfAnswer(sample());
  support::keepSeed(bytes);
  const auto answer = answerOfBytes(bytes);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->kind, Kind::asset);
  EXPECT_EQ(answer->asset, sample().asset);
  EXPECT_EQ(textOfCuts(*answer), "looked at no more than its first packets");
}

TEST(AssetMessage, SaysThatThereIsNone) {
  for (const Kind kind : {Kind::none, Kind::tooMuch}) {
    const auto answer = answerOfBytes(bytesOfAnswer({.kind = kind}));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->kind, kind);
    EXPECT_EQ(textOfCuts(*answer), "");
  }
}

TEST(AssetMessage, CutsWhatIsTooLong) {
  ContainerAnswer answer = sample();
  answer.asset.commonMetadata[1].value = std::string(5000, 'x') + "ä";
  answer.asset.commonMetadata[0].value = std::string(containerLimits.textBytes - 1, 'x') + "ä";
  answer.asset.tracks.resize(1000, videoTrack());
  answer.asset.tracks[0].formatDescriptions[0].extensions["Large"] = model::Data(100'000);
  const auto bytes = bytesOfAnswer(answer);
  EXPECT_LE(bytes.size(), containerLimits.answerBytes);
  const auto read = answerOfBytes(bytes);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->asset.tracks.size(), containerLimits.tracks);
  EXPECT_EQ(read->asset.commonMetadata[0].value->asString()->size(), containerLimits.textBytes - 1);
  EXPECT_EQ(
      textOfCuts(*read),
      "looked at no more than its first packets, some of its tracks are left out, some of its "
      "texts are cut, some configuration records are left out");
}

TEST(AssetMessage, KeepsToItsSizeWhateverIsInTheTracks) {
  ContainerAnswer answer = sample();
  model::Track& track = answer.asset.tracks[0];
  track.commonMetadata.assign(16, {"title", model::Value(std::string(4096, 'x'))});
  answer.asset.tracks.assign(64, model::Track(track));
  const auto bytes = bytesOfAnswer(answer);
  EXPECT_LE(bytes.size(), containerLimits.answerBytes);
  EXPECT_TRUE(answerOfBytes(bytes));
}

TEST(AssetMessage, HasNoNumbersThatAreNone) {
  ContainerAnswer answer = sample();
  answer.asset.duration = std::numeric_limits<double>::infinity();
  answer.asset.tracks[0].estimatedDataRate = std::numeric_limits<float>::infinity();
  answer.asset.tracks[0].naturalSize.width = std::nan("");
  answer.asset.tracks[0].formatDescriptions[0].width = -5;
  const auto read = answerOfBytes(bytesOfAnswer(answer));
  ASSERT_TRUE(read);
  EXPECT_TRUE(std::isnan(read->asset.duration));
  EXPECT_EQ(read->asset.tracks[0].estimatedDataRate, 0);
  EXPECT_EQ(read->asset.tracks[0].naturalSize.width, 0);
  EXPECT_EQ(read->asset.tracks[0].formatDescriptions[0].width, 0);
}

// Whatever was accepted keeps the promises of the header.
void expectSound(const ContainerAnswer& answer) {
  EXPECT_LE(answer.asset.tracks.size(), containerLimits.tracks);
  EXPECT_FALSE(std::isinf(answer.asset.duration));
  for (const model::Track& track : answer.asset.tracks) {
    EXPECT_GE(track.trackID, 0);
    EXPECT_TRUE(model::isValidUtf8(track.mediaType));
    EXPECT_FALSE(std::isinf(track.duration));
    EXPECT_TRUE(std::isfinite(track.estimatedDataRate));
    EXPECT_TRUE(std::isfinite(track.naturalSize.width));
    EXPECT_LE(track.commonMetadata.size(), containerLimits.items);
    for (const auto& item : track.commonMetadata) {
      ASSERT_NE(item.value->asString(), nullptr);
      EXPECT_TRUE(model::isValidUtf8(*item.value->asString()));
    }
  }
}

TEST(AssetMessage, IsRefusedWhereItLiesInAnyField) {
  const auto whole = bytesOfAnswer(sample());
  int refused = 0;
  for (std::size_t place = 0; place < whole.size(); ++place) {
    for (const int value : {0x00, 0x01, 0x02, 0x03, 0x10, 0x7F, 0x80, 0xF0, 0xFE, 0xFF}) {
      auto bytes = whole;
      bytes[place] = static_cast<std::uint8_t>(value);
      const auto answer = answerOfBytes(bytes);
      if (answer) expectSound(*answer);
      refused += !answer;
    }
  }
  EXPECT_GT(refused, 0);
}

TEST(AssetMessage, IsRefusedWhereItIsCut) {
  const auto whole = bytesOfAnswer(sample());
  for (std::size_t length = 0; length < whole.size(); ++length)
    EXPECT_FALSE(answerOfBytes(std::span(whole).first(length))) << length;
}

}  // namespace
}  // namespace media::movie
