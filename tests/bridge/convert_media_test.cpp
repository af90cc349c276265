// SPDX-License-Identifier: MIT
#include "bridge/convert_media.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "bridge/convert.h"
#include "tests/bridge/victims.h"

// The platform's C functions, over a dictionary that stands for a format description.
namespace {

bridge::NSDictionary dictionaryOf(CMFormatDescriptionRef description) {
  return bridge::NSDictionary(reinterpret_cast<id>(const_cast<CMFormatDescription*>(description)));
}

std::uint32_t code(CMFormatDescriptionRef description, const char* key) {
  const model::Value value =
      bridge::toValue(dictionaryOf(description).at(bridge::NSString::make(key)));
  return static_cast<std::uint32_t>(*value.asInteger());
}

}  // namespace

std::uint32_t CMFormatDescriptionGetMediaType(CMFormatDescriptionRef description) {
  return code(description, "type");
}
std::uint32_t CMFormatDescriptionGetMediaSubType(CMFormatDescriptionRef description) {
  return code(description, "subtype");
}
CMVideoDimensions CMVideoFormatDescriptionGetDimensions(CMFormatDescriptionRef) {
  return {1920, 1080};
}
const AudioStreamBasicDescription* CMAudioFormatDescriptionGetStreamBasicDescription(
    CMFormatDescriptionRef) {
  static const AudioStreamBasicDescription audio = {44100, 0x61616320, 1, 2, 1024, 3, 2, 16, 0};
  return &audio;
}
CFDictionaryRef CMFormatDescriptionGetExtensions(CMFormatDescriptionRef description) {
  return reinterpret_cast<CFDictionaryRef>(
      dictionaryOf(description).at(bridge::NSString::make("extensions")).get());
}
double CMTimeGetSeconds(CMTime time) {
  if (!(time.flags & 1)) return std::numeric_limits<double>::quiet_NaN();
  return static_cast<double>(time.value) / time.timescale;
}

namespace bridge {
namespace {

constexpr std::int64_t video = 0x76696465;
constexpr std::int64_t sound = 0x736f756e;

id objects(const model::Value& value) {
  return toObject(value).autorelease().get();
}

id formats(id, SEL) {
  return objects(model::Array{
      model::Dictionary{{"type", video},
                        {"subtype", 0x61766331},
                        {"extensions", model::Dictionary{{"Depth", 24}}}},
      model::Dictionary{{"type", sound}, {"subtype", 0x6d703461}},
  });
}

// An item of common metadata: with key and value, or without.
template <bool Complete>
Owned<Object> item() {
  static const Class made =
      victims::ClassMaker(Complete ? "CompleteItem" : "EmptyItem")
          .method(
              "commonKey", +[](id, SEL) { return Complete ? objects("make") : nullptr; })
          .method(
              "value", +[](id, SEL) { return Complete ? objects("Maker") : nullptr; })
          .build();
  return victims::make(made);
}

id items(id, SEL) {
  return NSArray::of(item<true>().get(), item<false>().get()).get();
}

Owned<Object> track() {
  static const Class made =
      victims::ClassMaker("StandInTrack")
          .method(
              "trackID", +[](id, SEL) { return 2; })
          .method(
              "mediaType", +[](id, SEL) { return objects("vide"); })
          .method("formatDescriptions", &formats)
          .method(
              "naturalSize",
              +[](id, SEL) {
                return CGSize{1920, 1080};
              })
          .method(
              "preferredTransform",
              +[](id, SEL) { return CGAffineTransform{0, 1, -1, 0, 1080, 0}; })
          .method(
              "timeRange",
              +[](id, SEL) {
                return CMTimeRange{{0, 600, 1, 0}, {7525, 100, 1, 0}};
              })
          .method(
              "estimatedDataRate", +[](id, SEL) { return 1.5e6F; })
          .method(
              "nominalFrameRate", +[](id, SEL) { return 29.97F; })
          .method(
              "minFrameDuration",
              +[](id, SEL) {
                return CMTime{1001, 30000, 1, 0};
              })
          .method("commonMetadata", &items)
          .build();
  return victims::make(made);
}

TEST(ConvertMedia, ReadsAllThatTheReportShows) {
  const AutoreleasePool pool;
  static const Class made =
      victims::ClassMaker("StandInAsset")
          .method(
              "tracks", +[](id, SEL) { return NSArray::of(track().get()).get(); })
          .method("commonMetadata", &items)
          .build();
  const auto asset = victims::make(made);
  const model::MediaAsset media = toMediaAsset(AVURLAsset(asset.get().get()));

  ASSERT_EQ(media.commonMetadata.size(), 2U);
  EXPECT_EQ(media.commonMetadata[0], (model::MetadataItem{"make", model::Value("Maker")}));
  EXPECT_EQ(media.commonMetadata[1], model::MetadataItem());
  ASSERT_EQ(media.tracks.size(), 1U);
  const model::Track& read = media.tracks[0];
  EXPECT_EQ(read.trackID, 2);
  EXPECT_EQ(read.mediaType, "vide");
  EXPECT_EQ(read.naturalSize, (model::Size{1920, 1080}));
  EXPECT_EQ(read.preferredTransform, (model::AffineTransform{0, 1, -1, 0, 1080, 0}));
  EXPECT_EQ(read.duration, 75.25);
  EXPECT_EQ(read.estimatedDataRate, 1.5e6F);
  EXPECT_EQ(read.nominalFrameRate, 29.97F);
  EXPECT_EQ(read.minFrameDuration, 1001.0 / 30000);
  EXPECT_EQ(read.commonMetadata.size(), 2U);
  ASSERT_EQ(read.formatDescriptions.size(), 2U);
  EXPECT_EQ(read.formatDescriptions[0], (model::FormatDescription{model::fourCharCode("vide"),
                                                                  model::fourCharCode("avc1"),
                                                                  1920,
                                                                  1080,
                                                                  {},
                                                                  {{"Depth", 24}}}));
  const model::AudioStreamDescription audio = {44100, 0x61616320, 1, 2, 1024, 3, 2, 16};
  EXPECT_EQ(read.formatDescriptions[1],
            (model::FormatDescription{
                model::fourCharCode("soun"), model::fourCharCode("mp4a"), 0, 0, audio, {}}));
}

TEST(ConvertMedia, OfAnAbsentAssetIsEmpty) {
  EXPECT_EQ(toMediaAsset(AVURLAsset()), model::MediaAsset());
}

}  // namespace
}  // namespace bridge
