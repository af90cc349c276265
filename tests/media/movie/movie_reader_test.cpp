// SPDX-License-Identifier: MIT
#include "media/movie/movie_reader.h"

#include <gtest/gtest.h>

#include "tests/media/movie/asset_text.h"
#include "tests/media/movie/reading.h"

namespace media::movie {
namespace {

TEST(MovieReader, ReadsAPortraitPhoneMovieWhole) {
  const Reading reading = readBytes(phoneMovie());
  ASSERT_EQ(reading.outcome, "asset");
  EXPECT_EQ(assetText(reading.asset), R"(track = 1 soun
  naturalSize = 0 x 0
  preferredTransform = 1 0 0 1 0 0
  duration = 3
  estimatedDataRate = 96124.22
  nominalFrameRate = 43.066406
  minFrameDuration = (none)
  description = soun/aac  0 x 0
    audio = 44100 aac  0 0 1024 0 1 0
    VerbatimSampleDescription = <0000004e 6d703461 00000000 00000001 00000000 00000000 00020010 00000000 ac440000 0000002a 65736473 00000000 031c0000 00048080 80114015 00180000 01770000 01770005 02120806 0102>
track = 2 vide
  naturalSize = 1920 x 1080
  preferredTransform = 0 1 -1 0 1080 0
  duration = 3
  estimatedDataRate = 12000000
  nominalFrameRate = 30
  minFrameDuration = 0.025
  description = vide/avc1 1920 x 1080
    CVFieldCount = 1
    CVImageBufferChromaLocationBottomField = Left
    CVImageBufferChromaLocationTopField = Left
    CVImageBufferColorPrimaries = "ITU_R_709_2"
    CVImageBufferTransferFunction = "ITU_R_709_2"
    CVImageBufferYCbCrMatrix = "ITU_R_709_2"
    Depth = 24
    FormatName = "H.264"
    FullRangeVideo = 0
    RevisionLevel = 0
    SampleDescriptionExtensionAtoms = {
    avcC = <01640028 ffe1000b 67640028 acd94078 0227e501 000468eb e3cb>;
}
    SpatialQuality = 512
    TemporalQuality = 512
    Vendor = appl
    VerbatimSampleDescription = <0000008e 61766331 00000000 00000001 00000000 6170706c 00000200 00000200 07800438 00480000 00480000 00000000 00010548 2e323634 00000000 00000000 00000000 00000000 00000000 00000000 00000018 ffff0000 00226176 63430164 0028ffe1 000b6764 0028acd9 40780227 e5010004 68ebe3cb 00000012 636f6c72 6e636c63 00010001 00010000 0000>
    Version = 0
track = 3 meta
  naturalSize = 0 x 0
  preferredTransform = 1 0 0 1 0 0
  duration = 3
  estimatedDataRate = 26.666666
  nominalFrameRate = 0.33333334
  minFrameDuration = 3
  description = meta/mebx 0 x 0
    MetadataKeyTable = {
    1 = {
        MetadataKeyDataType = <00000042>;
        MetadataKeyDataTypeNamespace = 0;
        MetadataKeyLocalID = 1;
        MetadataKeyNamespace = 1835299937;
        MetadataKeyValue = <636f6d2e 6170706c 652e7175 69636b74 696d652e 76696465 6f2d6f72 69656e74 6174696f 6e>;
    };
}
creationDate = "2018-09-30T14:03:11+0200"
location = "+48.8577+002.2950+035.000/"
make = Apple
model = "iPhone 8"
software = "12.4"
asset duration = 3
asset creationDate = 1538308991
)");
}

TEST(MovieReader, ReadsAWebMovieWhole) {
  const Reading reading = readBytes(webMovie());
  ASSERT_EQ(reading.outcome, "asset");
  EXPECT_EQ(assetText(reading.asset), R"(track = 1 vide
  naturalSize = 1706.65625 x 720
  preferredTransform = 1 0 0 1 0 0
  duration = 10.01
  estimatedDataRate = 1438561.5
  nominalFrameRate = 29.97003
  minFrameDuration = 0.03336666666666667
  description = vide/avc1 1280 x 720
    CVFieldCount = 1
    CVImageBufferChromaLocationBottomField = Left
    CVImageBufferChromaLocationTopField = Left
    CVImageBufferColorPrimaries = "ITU_R_2020"
    CVImageBufferTransferFunction = "SMPTE_ST_2084_PQ"
    CVImageBufferYCbCrMatrix = "ITU_R_2020"
    CVPixelAspectRatio = {
    HorizontalSpacing = 4;
    VerticalSpacing = 3;
}
    Depth = 24
    FormatName = "'avc1'"
    FullRangeVideo = 1
    RevisionLevel = 0
    SampleDescriptionExtensionAtoms = {
    avcC = <01640028 ffe1000b 67640028 acd94078 0227e501 000468eb e3cb>;
}
    SpatialQuality = 0
    TemporalQuality = 0
    VerbatimISOSampleEntry = <0000009b 61766331 00000000 00000001 00000000 00000000 00000000 00000000 050002d0 00480000 00480000 00000000 00010000 00000000 00000000 00000000 00000000 00000000 00000000 00000000 00000018 ffff0000 00226176 63430164 0028ffe1 000b6764 0028acd9 40780227 e5010004 68ebe3cb 00000010 70617370 00000004 00000003 00000013 636f6c72 6e636c78 00090010 000980>
    Version = 0
track = 2 soun
  naturalSize = 0 x 0
  preferredTransform = 1 0 0 1 0 0
  duration = 10.005
  estimatedDataRate = 127875
  nominalFrameRate = 46.875
  minFrameDuration = (none)
  description = soun/aac  0 x 0
    audio = 48000 aac  0 0 1024 0 2 0
    VerbatimISOSampleEntry = <0000004e 6d703461 00000000 00000001 00000000 00000000 00020010 00000000 bb800000 0000002a 65736473 00000000 031c0000 00048080 80114015 00180000 01770000 01770005 02119006 0102>
software = "Lavf59.27.100"
title = "Café"
asset duration = 10.01
asset creationDate = (none)
)");
}

TEST(MovieReader, ReadsALivePhotoMovieWithLinearSound) {
  const Bytes sound = track({.header = trackHeader(2, 1780, {1, 0, 0, 1, 0, 0}, 0, 0),
                             .mediaHeader = mediaHeader(44100, 130830),
                             .handlerType = "soun",
                             .descriptions = sampleDescriptions({linearEntry(44100, 1, 16, 12)}),
                             .times = timeToSample({{130830, 1}}),
                             .sizes = constantSampleSize(2, 130830)});
  const Bytes metadata = quickTimeMetadata(
      {{"com.apple.quicktime.content.identifier", "B4F5C1E0-0D2A-4B53-9F5C-3B0E2F0E9A11"},
       {"com.apple.quicktime.live-photo.auto", "1"}});
  const Reading reading =
      readBytes(joined({fileType("qt  "), codedSamples(100),
                        box("moov", {movieHeader(600, 1780), sound, metadata})}));
  EXPECT_EQ(assetText(reading.asset), R"(track = 2 soun
  naturalSize = 0 x 0
  preferredTransform = 1 0 0 1 0 0
  duration = 2.966666666666667
  estimatedDataRate = 705600
  nominalFrameRate = 44100
  minFrameDuration = (none)
  description = soun/lpcm 0 x 0
    audio = 44100 lpcm 12 2 1 2 1 16
    VerbatimSampleDescription = <00000048 6c70636d 00000000 00000001 00020000 00000000 00030010 fffe0000 00010000 00000048 40e58880 00000000 00000001 7f000000 00000010 0000000c 00000002 00000001>
identifier = "B4F5C1E0-0D2A-4B53-9F5C-3B0E2F0E9A11"
asset duration = 2.966666666666667
asset creationDate = (none)
)");
}

TEST(MovieReader, ReadsAMobileMovieOfTheThirdGeneration) {
  const Bytes video = track(
      {.header = trackHeader(1, 2000, {1, 0, 0, 1, 0, 0}, 176, 144),
       .mediaHeader = mediaHeader(1000, 2000),
       .handlerType = "vide",
       .descriptions = sampleDescriptions({videoEntry(
           {.code = "s263", .width = 176, .height = 144, .boxes = box("d263", Bytes(7, 0))})}),
       .times = timeToSample({{30, 66}, {1, 20}}),
       .sizes = constantSampleSize(500, 31)});
  const Bytes sound = track({.header = trackHeader(2, 2000, {1, 0, 0, 1, 0, 0}, 0, 0),
                             .mediaHeader = mediaHeader(8000, 16000),
                             .handlerType = "soun",
                             .descriptions = sampleDescriptions(
                                 {soundEntry("samr", 1, 16, 8000, box("damr", Bytes(9, 0)))}),
                             .times = timeToSample({{100, 160}}),
                             .sizes = constantSampleSize(32, 100)});
  const Bytes userData =
      box("udta", {fullBox("titl", 0, Writer().u16(0x15C7).text("Harbour").u8(0)),
                   fullBox("yrrc", 0, Writer().u16(2007)),
                   fullBox("loci", 0,
                           Writer()
                               .u16(0x15C7)
                               .text("Pier")
                               .u8(0)
                               .u8(0)
                               .fixed(2.295)
                               .fixed(-33.8568)
                               .fixed(5)
                               .text("earth")
                               .u8(0)
                               .u8(0))});
  const Reading reading = readBytes(
      joined({fileType("3gp5"),
              box("moov", {movieHeader(1000, 2000, 3263328000), video, sound, userData})}));
  EXPECT_EQ(assetText(reading.asset), R"(track = 1 vide
  naturalSize = 176 x 144
  preferredTransform = 1 0 0 1 0 0
  duration = 2
  estimatedDataRate = 62000
  nominalFrameRate = 15.5
  minFrameDuration = 0.02
  description = vide/s263 176 x 144
    CVFieldCount = 1
    Depth = 24
    FormatName = "'s263'"
    RevisionLevel = 0
    SampleDescriptionExtensionAtoms = {
    d263 = <00000000 000000>;
}
    SpatialQuality = 0
    TemporalQuality = 0
    VerbatimISOSampleEntry = <00000065 73323633 00000000 00000001 00000000 00000000 00000000 00000000 00b00090 00480000 00480000 00000000 00010000 00000000 00000000 00000000 00000000 00000000 00000000 00000000 00000018 ffff0000 000f6432 36330000 00000000 00>
    Version = 0
track = 2 soun
  naturalSize = 0 x 0
  preferredTransform = 1 0 0 1 0 0
  duration = 2
  estimatedDataRate = 12800
  nominalFrameRate = 50
  minFrameDuration = (none)
  description = soun/samr 0 x 0
    audio = 8000 samr 0 0 160 0 1 0
    VerbatimISOSampleEntry = <00000035 73616d72 00000000 00000001 00000000 00000000 00010010 00000000 1f400000 00000011 64616d72 00000000 00000000 00>
creationDate = 2007
location = "-33.8568+002.2950+005.000/"
title = Harbour
asset duration = 2
asset creationDate = 1180483200
)");
}

TEST(MovieReader, GivesAMovieWithoutTracksAsAnEmptyAsset) {
  const Reading reading = readBytes(joined({fileType("isom"), box("moov", movieHeader(600, 0))}));
  EXPECT_EQ(reading.outcome, "asset");
  EXPECT_EQ(reading.asset, model::MediaAsset());
}

TEST(MovieReader, TakesTheMovieHeadersTimeWhereTheMetadataHasNoMoment) {
  struct Case {
    std::uint32_t creationTime;
    std::string_view text;
    std::optional<double> seconds;
  };
  const Case cases[] = {
      {3621153795, "2018", 1538308995},                      // a bare year is no moment
      {3621153795, "2018-09-30T14:03:11+0200", 1538308991},  //
      {0, "2018", std::nullopt},                             //
      {1538308995, "2018", 1538308995},                      // seconds since 1970
  };
  for (const Case& row : cases) {
    const Bytes metadata = quickTimeMetadata({{"com.apple.quicktime.creationdate", row.text}});
    const Reading reading = readBytes(joined(
        {fileType("qt  "), box("moov", {movieHeader(600, 600, row.creationTime), metadata})}));
    const auto& date = reading.asset.creationDate;
    EXPECT_EQ(date ? std::optional(date->secondsSince1970) : std::nullopt, row.seconds)
        << row.creationTime << " " << row.text;
  }
}

TEST(MovieReader, TakesTheLongestTrackWhereTheHeaderStatesNoDuration) {
  const Bytes trak = track({.header = trackHeader(1, 0, {1, 0, 0, 1, 0, 0}, 0, 0),
                            .mediaHeader = mediaHeader(1000, 2500),
                            .handlerType = "text"});
  const Reading reading =
      readBytes(joined({fileType("isom"), box("moov", {movieHeader(0, 5), trak})}));
  ASSERT_EQ(reading.asset.tracks.size(), 1U);
  EXPECT_EQ(reading.asset.tracks[0].duration, 2.5);
  EXPECT_EQ(reading.asset.duration, 2.5);
}

}  // namespace
}  // namespace media::movie
