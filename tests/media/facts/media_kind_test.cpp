// SPDX-License-Identifier: MIT
#include "media/facts/media_kind.h"

#include <gtest/gtest.h>

#include "tests/support/sample_photo.h"
#include "tests/support/temporary_folder.h"

namespace media::facts {
namespace {

using namespace std::string_view_literals;

constexpr std::optional<MediaKind> none = std::nullopt;

TEST(MediaKindTest, goesByTheNamesExtension) {
  const struct {
    std::string_view name;
    std::optional<MediaKind> kind;
  } cases[] = {
      {"IMG_0001.JPG", MediaKind::image},
      {"a.heic", MediaKind::image},
      {"a.png", MediaKind::image},
      {"a.webp", MediaKind::image},
      {"a.dng", MediaKind::image},
      {"a.raf", MediaKind::image},
      {"a.cr3", MediaKind::image},
      {"a.psd", MediaKind::image},
      {"IMG_0002.MOV", MediaKind::video},
      {"a.mp4", MediaKind::video},
      {"a.mkv", MediaKind::video},
      {"a.WebM", MediaKind::video},
      {"a.mts", MediaKind::video},
      {"a.txt", none},
      {"a.mp3", none},
      {"a.ogg", none},
      {"a.jpg.part", none},
      {"jpg", none},
      {"", none},
      {"a.", none},
      {"\xFF.jpg", MediaKind::image},
  };
  for (const auto& row : cases) EXPECT_EQ(mediaKindOfName(row.name), row.kind) << row.name;
}

TEST(MediaKindTest, goesByTheFirstBytes) {
  const struct {
    std::string_view bytes;
    std::optional<MediaKind> kind;
  } cases[] = {
      {"\x89PNG\r\n\x1A\n\0\0\0\rIHDR"sv, MediaKind::image},
      {"GIF89a\1\0\1\0"sv, MediaKind::image},
      {"\0\0\0\x14"
       "ftypheic\0\0\0\0mif1"sv,
       MediaKind::image},
      {"\0\0\0\x14"
       "ftypqt  \0\0\0\0qt  "sv,
       MediaKind::video},
      {"\0\0\0\x14"
       "ftypisom\0\0\0\0mp41"sv,
       MediaKind::video},
      {"\0\0\0\x14"
       "ftypM4A \0\0\0\0M4A "sv,
       none},
      {"\0\0\0\x08wide\0\0\0\0mdat"sv, MediaKind::video},
      {"\x1A\x45\xDF\xA3\x93\x42\x82\x84webm"sv, MediaKind::video},
      {"FUJIFILMCCD-RAW 0201"sv, MediaKind::image},
      {"8BPS\0\1"sv, MediaKind::image},
      {"The free software that this is"sv, none},
      {"plain text"sv, none},
      {"OggS\0\2"sv, none},
      {""sv, none},
  };
  const support::TemporaryFolder folder;
  for (const auto& row : cases) {
    const auto kind = mediaKindOfContent(folder.write("file", row.bytes));
    ASSERT_TRUE(kind) << row.bytes;
    EXPECT_EQ(*kind, row.kind) << row.bytes;
  }
  EXPECT_EQ(*mediaKindOfContent(folder.write("photo", sampleJpeg({}))), MediaKind::image);
}

TEST(MediaKindTest, whatIsNoFileIsRefused) {
  const support::TemporaryFolder folder;
  EXPECT_EQ(mediaKindOfContent(folder.file("none")).error().reason, "No such file or directory");
  EXPECT_EQ(mediaKindOfContent(folder.path()).error().reason, "Is a directory");
}

TEST(MediaKindTest, imagesWithoutAStillAreAVideo) {
  const support::TemporaryFolder folder;
  const std::string_view type =
      "\0\0\0\x14"
      "ftyphevc\0\0\0\0msf1"sv;
  const std::string_view movie = "\0\0\0\x08moov"sv;
  const std::string_view items = "\0\0\0\x0Cmeta\0\0\0\0"sv;
  const std::string sequence = folder.write("a", std::string(type).append(movie));
  const std::string both = folder.write("b", std::string(type).append(items).append(movie));
  EXPECT_EQ(*mediaKindOfContent(sequence), MediaKind::video);
  EXPECT_EQ(*mediaKindOfContent(both), MediaKind::image);
}

}  // namespace
}  // namespace media::facts
