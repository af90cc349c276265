// SPDX-License-Identifier: MIT
#include "media/movie/tracks/audio_description.h"

#include <gtest/gtest.h>

#include "media/movie/boxes/four_char_text.h"
#include "tests/media/movie/bit_writer.h"
#include "tests/media/movie/reading.h"

namespace media::movie {
namespace {

using model::AudioStreamDescription;
using model::fourCharCode;

AudioStreamDescription readSound(const Bytes& entry, std::string_view brand = "qt  ",
                                 std::uint32_t tableVersion = 0) {
  const auto description = readEntry(brand, "soun", entry, tableVersion);
  return description.audio.value_or(AudioStreamDescription{.sampleRate = -1});
}

std::string textOf(const AudioStreamDescription& audio) {
  std::string text = fourCharText(audio.formatID);
  for (const double value :
       {audio.sampleRate, double(audio.formatFlags), double(audio.bytesPerPacket),
        double(audio.framesPerPacket), double(audio.bytesPerFrame), double(audio.channelsPerFrame),
        double(audio.bitsPerChannel)})
    text += " " + std::to_string(static_cast<long>(value));
  return text;
}

TEST(AudioDescription, NamesLinearSound) {
  const Bytes little = box("wave", {box("enda", Writer().u16(1))});
  const struct {
    Bytes entry;
    std::string expected;  // rate, flags, bytes, frames, bytes, channels, bits
  } cases[] = {
      {soundEntry("sowt", 2, 16, 44100), "lpcm 44100 12 4 1 4 2 16"},
      {soundEntry("twos", 2, 16, 44100), "lpcm 44100 14 4 1 4 2 16"},
      {soundEntry("twos", 1, 8, 8000), "lpcm 8000 12 1 1 1 1 8"},
      {soundEntry("raw ", 1, 8, 11025), "lpcm 11025 8 1 1 1 1 8"},
      {soundEntry("NONE", 2, 16, 11025), "lpcm 11025 14 4 1 4 2 16"},
      {soundEntry("in24", 2, 16, 48000), "lpcm 48000 14 6 1 6 2 24"},
      {soundEntry("in32", 1, 16, 48000, little), "lpcm 48000 12 4 1 4 1 32"},
      {soundEntry("fl32", 1, 16, 48000), "lpcm 48000 11 4 1 4 1 32"},
      {soundEntry("fl64", 1, 16, 48000, little), "lpcm 48000 9 8 1 8 1 64"},
      {linearEntry(48000, 2, 24, 12), "lpcm 48000 12 6 1 6 2 24"},
      {linearEntry(44100, 1, 32, 11), "lpcm 44100 11 4 1 4 1 32"},
      {soundEntry("ipcm", 2, 16, 48000, fullBox("pcmC", 0, {1, 24})), "lpcm 48000 12 6 1 6 2 24"},
      {soundEntry("fpcm", 1, 16, 48000, fullBox("pcmC", 0, {0, 32})), "lpcm 48000 11 4 1 4 1 32"},
  };
  for (const auto& row : cases) EXPECT_EQ(textOf(readSound(row.entry)), row.expected);
}

TEST(AudioDescription, NamesCompressedSound) {
  const Bytes packets = Writer().u32(64).u32(34).u32(68).u32(2);
  const struct {
    Bytes entry;
    std::string expected;
  } cases[] = {
      {soundEntry("samr", 2, 16, 8000), "samr 8000 0 0 160 0 1 0"},
      {soundEntry("sawb", 2, 16, 16000), "sawb 16000 0 0 320 0 1 0"},
      {soundEntry(".mp3", 2, 16, 44100), ".mp3 44100 0 0 1152 0 2 0"},
      {soundEntry(std::string_view("ms\0U", 4), 2, 16, 22050), ".mp3 22050 0 0 576 0 2 0"},
      {soundEntry("ac-3", 6, 16, 48000), "ac-3 48000 0 0 1536 0 6 0"},
      {soundEntry("ima4", 2, 16, 22050, packets, 1), "ima4 22050 0 68 64 0 2 0"},
      {soundEntry("ima4", 2, 16, 22050), "ima4 22050 0 68 64 0 2 0"},
      {soundEntry("ulaw", 2, 16, 8000), "ulaw 8000 0 2 1 2 2 8"},
      {soundEntry("QDM2", 2, 16, 44100), "QDM2 44100 0 0 0 0 2 0"},
      {soundEntry("mp4a", 2, 16, 44100, elementaryStreamBox(0x6B, {})),
       ".mp3 44100 0 0 1152 0 2 0"},
      {soundEntry("mp4a", 2, 16, 44100), "aac  44100 0 0 1024 0 2 0"},
  };
  for (const auto& row : cases) EXPECT_EQ(textOf(readSound(row.entry)), row.expected);
}

TEST(AudioDescription, ReadsTheConfigurationOfAac) {
  const BitWriter ratedHe =
      BitWriter().bits(5, 5).bits(4, 7).bits(4, 2).bits(4, 4).bits(5, 2).bits(3, 0);
  const BitWriter markedHe = BitWriter()
                                 .bits(5, 2)
                                 .bits(4, 7)
                                 .bits(4, 2)
                                 .bits(3, 0)
                                 .bits(11, 0x2B7)
                                 .bits(5, 5)
                                 .bits(1, 1)
                                 .bits(4, 4);
  const BitWriter marked2 = BitWriter()
                                .bits(5, 2)
                                .bits(4, 7)
                                .bits(4, 1)
                                .bits(3, 0)
                                .bits(11, 0x2B7)
                                .bits(5, 5)
                                .bits(1, 1)
                                .bits(4, 4)
                                .bits(11, 0x548)
                                .bits(1, 1);
  const BitWriter rated2 =
      BitWriter().bits(5, 29).bits(4, 7).bits(4, 1).bits(4, 4).bits(5, 2).bits(3, 0);
  const struct {
    std::string_view what;
    Bytes configuration;
    std::string expected;
  } cases[] = {
      {"LC 44100 stereo", {0x12, 0x10}, "aac  44100 0 0 1024 0 2 0"},
      {"LC 48000 mono", {0x11, 0x88}, "aac  48000 0 0 1024 0 1 0"},
      {"short frames", {0x11, 0x94}, "aac  48000 0 0 960 0 2 0"},
      {"a rate of its own",
       BitWriter().bits(5, 2).bits(4, 15).bits(24, 12345).bits(4, 6).bits(3, 0).bytes(),
       "aac  12345 0 0 1024 0 6 0"},
      {"7.1", BitWriter().bits(5, 2).bits(4, 3).bits(4, 7).bits(3, 0).bytes(),
       "aac  48000 0 0 1024 0 8 0"},
      {"channels of the entry", BitWriter().bits(5, 2).bits(4, 3).bits(4, 0).bits(3, 0).bytes(),
       "aac  48000 0 0 1024 0 3 0"},
      {"HE", ratedHe.bytes(), "aach 44100 0 0 2048 0 2 0"},
      {"HE behind LC", markedHe.bytes(), "aach 44100 0 0 2048 0 2 0"},
      {"HE v2", rated2.bytes(), "aacp 44100 0 0 2048 0 2 0"},
      {"HE v2 behind LC", marked2.bytes(), "aacp 44100 0 0 2048 0 2 0"},
      {"ELD", BitWriter().bits(5, 31).bits(6, 7).bits(4, 4).bits(4, 1).bits(4, 0).bytes(),
       "aace 44100 0 0 512 0 1 0"},
      {"cut off", {0x12}, "aac  22050 0 0 1024 0 3 0"},
  };
  for (const auto& row : cases) {
    const Bytes esds = elementaryStreamBox(0x40, row.configuration);
    EXPECT_EQ(textOf(readSound(soundEntry("mp4a", 3, 16, 22050, esds))), row.expected) << row.what;
    const Bytes wave = Writer().u32(1024).u32(0).u32(2).u32(2).bytes(
        box("wave", {box("frma", Writer().text("mp4a")), esds, Bytes(4, 0)}));
    EXPECT_EQ(textOf(readSound(soundEntry("mp4a", 3, 16, 22050, wave, 1))), row.expected)
        << row.what << ", in a wave box";
  }
}

TEST(AudioDescription, ReadsTheCookieOfLosslessSound) {
  const auto cookie = [](std::uint8_t depth) {
    return fullBox(
        "alac", 0,
        Writer().u32(4096).u8(0).u8(depth).u24(0x280A0E).u8(2).u16(255).u32(0).u32(0).u32(96000));
  };
  for (const auto& [depth, flags] : {std::pair(16, 1), {20, 2}, {24, 3}, {32, 4}, {17, 0}}) {
    const Bytes box = cookie(static_cast<std::uint8_t>(depth));
    EXPECT_EQ(textOf(readSound(soundEntry("alac", 1, 16, 0, box))),
              "alac 96000 " + std::to_string(flags) + " 0 4096 0 2 0");
  }
  EXPECT_EQ(textOf(readSound(soundEntry("alac", 1, 16, 44100))), "alac 44100 0 0 4096 0 1 0");
}

TEST(AudioDescription, TakesTheMediasTimeScaleForAMissingRate) {
  EXPECT_EQ(readSound(soundEntry("twos", 1, 16, 0)).sampleRate, 1000);
}

TEST(AudioDescription, TellsTheVersionsOfIsoAndQuickTimeApart) {
  const Bytes esds = elementaryStreamBox(0x40, {0x12, 0x08});
  const Bytes entry = soundEntry("mp4a", 2, 16, 22050, esds, 1);
  EXPECT_EQ(readSound(entry, "isom", 1).channelsPerFrame, 1U);
  EXPECT_EQ(readSound(entry, "qt  ").channelsPerFrame, 2U) << "its boxes lie elsewhere";
}

TEST(AudioDescription, HasTheEntryForItsOnlyExtension) {
  const Bytes entry = soundEntry("sowt", 2, 16, 44100);
  const auto description = readEntry("mp42", "soun", entry);
  EXPECT_EQ(description.extensions, (model::Dictionary{{"VerbatimISOSampleEntry", entry}}));
  EXPECT_EQ(description.mediaSubType, fourCharCode("lpcm"));
}

TEST(AudioDescription, SurvivesAnyCut) {
  const Bytes entries[] = {
      soundEntry("mp4a", 2, 16, 44100, elementaryStreamBox(0x40, {0x12, 0x10})),
      linearEntry(48000, 2, 24, 12),
      soundEntry("alac", 1, 16, 0, fullBox("alac", 0, Bytes(24, 0xFF))),
  };
  for (const Bytes& whole : entries) {
    for (std::size_t size = 8; size <= whole.size(); ++size) {
      Bytes entry(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
      entry[3] = static_cast<std::uint8_t>(size);
      EXPECT_GE(readSound(entry).sampleRate, 0) << size;
    }
  }
}

}  // namespace
}  // namespace media::movie
