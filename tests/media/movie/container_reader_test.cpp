// SPDX-License-Identifier: MIT
#include "media/movie/other/container_reader.h"

#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <optional>

#include "io/on_demand_module.h"
#include "media/movie/other/container_limits.h"
#include "media/movie/other/container_shelf.h"
#include "tests/media/movie/asset_text.h"
#include "tests/media/movie/reading.h"
#include "tests/support/avi_builder.h"
#include "tests/support/crowded_containers.h"
#include "tests/support/webm_builder.h"
#include "workers/sanitizer.h"

namespace media::movie {
namespace {

using testing::HasSubstr;

// This process's readers.
std::vector<pid_t> readers() {
  std::vector<pid_t> result;
  for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
    std::ifstream list(thread.path() / "children");
    for (pid_t child = 0; list >> child;) result.push_back(child);
  }
  return result;
}

// The most memory that a process has had so far, in kilobytes.
long peakOf(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string word; status >> word;) {
    long kilobytes = 0;
    if (word == "VmHWM:" && status >> kilobytes) return kilobytes;
  }
  return 0;
}

class ContainerReaderTest : public testing::Test {
 protected:
  void SetUp() override {
    if (io::fileBesideModules("media_container_reader").empty())
      GTEST_SKIP() << "the reader is not built";
  }
};

// The text of what is read, or why nothing is.
std::string textOf(const std::string& name, const Bytes& bytes) {
  const auto movie = readFile(name, bytes);
  if (!movie) return movie.error().reason;
  return *movie ? assetText((*movie)->asset) + (*movie)->shortfall : "none";
}

TEST_F(ContainerReaderTest, ReadsWhateverTheFileIsCalled) {
  const std::string text = textOf("small.avi", smallAvi());
  EXPECT_THAT(text, HasSubstr("A small film"));
  for (const char* name : {"small.jpg", "small", "small.mkv", "\xFF.ts"})
    EXPECT_EQ(textOf(name, smallAvi()), text) << name;
}

TEST_F(ContainerReaderTest, TellsWhatALimitCut) {
  for (const Bytes& bytes : {crowdedMatroska(100), crowdedAvi(100)}) {
    const auto movie = readFile("crowded", bytes);
    ASSERT_TRUE(movie && *movie) << (movie ? "none" : movie.error().reason);
    EXPECT_EQ((*movie)->asset.tracks.size(), containerLimits.tracks);
    EXPECT_THAT((*movie)->shortfall, HasSubstr("some of its tracks are left out"));
  }
}

// Two seconds of video at 25 frames a second, and one of sound at 50 packets.
std::vector<WebmPacket> webmPackets() {
  std::vector<WebmPacket> packets;
  for (std::uint16_t frame = 0; frame < 50; ++frame) {
    const auto time = static_cast<std::uint16_t>(frame * 20);
    packets.push_back({2, time, 100});
    if (frame % 2 == 0) packets.push_back({1, time, 1000});
  }
  for (std::uint16_t frame = 25; frame < 50; ++frame)
    packets.push_back({1, static_cast<std::uint16_t>(frame * 40), 1000});
  return packets;
}

TEST_F(ContainerReaderTest, AddsUpThePacketsOfEachTrackOfWebm) {
  const auto movie = readFile("recorded.webm", webmMovie(webmPackets()));
  ASSERT_TRUE(movie && *movie && (*movie)->asset.tracks.size() == 2);
  const model::Track& video = (*movie)->asset.tracks[0];
  EXPECT_NEAR(video.duration, 2, 1e-6);
  EXPECT_NEAR(video.estimatedDataRate, 8 * 1000 * 25, 1);
  EXPECT_NEAR(video.nominalFrameRate, 25, 1e-3);
  const model::Track& sound = (*movie)->asset.tracks[1];
  EXPECT_NEAR(sound.duration, 1, 1e-6);
  EXPECT_NEAR(sound.estimatedDataRate, 8 * 100 * 50, 1);
  EXPECT_NEAR(sound.nominalFrameRate, 50, 1e-3);
}

TEST_F(ContainerReaderTest, TakesTheStatisticsThatWebmStates) {
  const auto movie =
      readFile("edited.webm", webmMovie(webmPackets(), {{"BPS-eng", "123456"},
                                                        {"DURATION-eng", "00:01:04.5"},
                                                        {"NUMBER_OF_FRAMES", "129"}}));
  ASSERT_TRUE(movie && *movie && (*movie)->asset.tracks.size() == 2);
  const model::Track& video = (*movie)->asset.tracks[0];
  EXPECT_EQ(video.duration, 64.5);
  EXPECT_EQ(video.estimatedDataRate, 123456);
  EXPECT_EQ(video.nominalFrameRate, 2);
  EXPECT_NEAR((*movie)->asset.tracks[1].duration, 1, 1e-6);
}

TEST_F(ContainerReaderTest, StaysWithinItsMemoryWhateverItReads) {
  if (workers::isSanitized) GTEST_SKIP() << "memory cannot be limited under a sanitizer";
  constexpr long most = 64 << 10;  // kilobytes, libraries included
  for (const int streams : {1, 10, 100, 250, 1000, 5000}) {
    for (const Bytes& bytes :
         {crowdedTransportStream(streams), crowdedMatroska(streams), crowdedAvi(streams)}) {
      const std::string text = textOf("crowded.jpg", bytes);
      EXPECT_THAT(text, testing::Not(HasSubstr("its reader"))) << streams;
      EXPECT_EQ(textOf("crowded.jpg", bytes), text) << streams;
      for (const pid_t reader : readers()) EXPECT_LE(peakOf(reader), most) << streams;
    }
  }
}

TEST_F(ContainerReaderTest, OutlivesItsReaders) {
  const std::string text = textOf("small.avi", smallAvi());
  for (int round = 0; round < 3; ++round) {
    for (const pid_t reader : readers()) kill(reader, SIGKILL);
    EXPECT_EQ(textOf("small.avi", smallAvi()), text);
  }
  EXPECT_EQ(readers().size(), 1U);
}

TEST_F(ContainerReaderTest, DoesNotWaitWhereThatIsRefused) {
  const support::TemporaryFolder folder;
  const std::string path = folder.write("small.avi", smallAvi());
  const auto file = io::FileSource::open(path);
  ASSERT_TRUE(file);
  const auto first = copyAssetOfFile(path, **file, Waiting::refused);
  ASSERT_FALSE(first);
  EXPECT_TRUE(isBeingRead(first.error()));
  ContainerShelf::ofProcess().finish();
  const auto second = copyAssetOfFile(path, **file, Waiting::refused);
  ASSERT_TRUE(second && *second);
  EXPECT_EQ((*second)->asset.tracks.size(), 2U);
}

TEST_F(ContainerReaderTest, TellsOfWhatWasReadMeanwhile) {
  const support::TemporaryFolder folder;
  const std::string path = folder.write("other.avi", smallAvi());
  const auto file = io::FileSource::open(path);
  ASSERT_TRUE(file);
  int news = 0;
  ContainerShelf::ofProcess().setOnNews([&news] { ++news; });
  ASSERT_FALSE(copyAssetOfFile(path, **file, Waiting::refused));
  ContainerShelf::ofProcess().finish();
  ContainerShelf::ofProcess().setOnNews({});
  EXPECT_EQ(news, 1);
}

}  // namespace
}  // namespace media::movie
