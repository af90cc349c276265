// SPDX-License-Identifier: MIT
#include "media/movie/boxes/movie_layout.h"

#include <gtest/gtest.h>

#include "tests/media/movie/reading.h"

namespace media::movie {
namespace {

Bytes emptyMovie() {
  return box("moov", movieHeader(600, 0));
}

std::string outcomeOf(const Bytes& bytes) {
  return readBytes(bytes).outcome;
}

// A box whose size is stated in 64 bits.
Bytes wideBox(std::string_view type, std::uint64_t size, const Bytes& payload) {
  return Writer().u32(1).text(type).u64(size).bytes(payload);
}

TEST(MovieLayout, FindsTheHeaderWhereverItLies) {
  const Bytes movies[] = {
      emptyMovie(),
      joined({fileType("qt  "), emptyMovie(), codedSamples(9)}),
      joined({fileType("mp42"), codedSamples(9), emptyMovie()}),
      joined({box("wide", Bytes()), codedSamples(9), emptyMovie()}),
      joined({box("free", Bytes(3, 0)), emptyMovie()}),
      joined({box("skip", Bytes()), box("pnot", Bytes(12, 0)), emptyMovie()}),
      joined({fileType("qt  "), wideBox("mdat", 16 + 5, Bytes(5, 1)), emptyMovie()}),
      joined({fileType("M4V "), Writer().u32(0).text("moov").bytes(movieHeader(600, 0))}),
  };
  for (std::size_t index = 0; index < std::size(movies); ++index)
    EXPECT_EQ(outcomeOf(movies[index]), "asset") << index;
}

TEST(MovieLayout, LeavesOtherFilesAlone) {
  const Bytes others[] = {
      Writer().text("\xFF\xD8\xFF\xE1 a picture"),
      Writer().text("just a text, with moov in it"),
      Writer().text("xxxxfree as a bird"),
      Writer().text("abc"),
      joined({fileType("heic"), box("meta", Bytes(20, 0))}),
      joined({fileType("jp2 "), emptyMovie()}),
      joined({fileType("msf1"), box("meta", Bytes(20, 0)), emptyMovie()}),
      joined({fileType("hevc"), emptyMovie(), box("meta", Bytes(20, 0))}),
      joined({fileType("msf1"), codedSamples(20)}),
      joined({fileType("hevc"), Writer().u32(900).text("mdat")}),
      joined({fileType("crx "), emptyMovie()}),
      box("free", Bytes(100, 0)),
      Writer().u32(0x7FFFFFFF).text("skip").zeros(40),
  };
  for (std::size_t index = 0; index < std::size(others); ++index)
    EXPECT_EQ(outcomeOf(others[index]), "none") << index;
}

TEST(MovieLayout, TakesImagesWithoutAStillForAMovie) {
  for (const std::string_view brand : {"msf1", "hevc", "hevx", "avis"})
    EXPECT_EQ(outcomeOf(joined({fileType(brand), codedSamples(9), emptyMovie()})), "asset")
        << brand;
}

TEST(MovieLayout, TellsWhatIsMissing) {
  const struct {
    Bytes bytes;
    std::string_view outcome;
  } cases[] = {
      {{}, "error: empty file"},
      {fileType("qt  "), "error: movie without a header (\"moov\")"},
      {joined({fileType("mp42"), codedSamples(20)}), "error: movie without a header (\"moov\")"},
      {joined({fileType("mp42"), Writer().u32(900).text("mdat")}), "error: truncated movie"},
      {joined({fileType("mp42"), codedSamples(20), Writer().u32(70)}), "error: truncated movie"},
      {joined({fileType("mp42"), Writer().u32(500).text("moov").zeros(80)}),
       "error: truncated movie"},
      {joined({fileType("mp42"), wideBox("mdat", UINT64_MAX, {}), emptyMovie()}),
       "error: truncated movie"},
      {joined({fileType("mp42"), wideBox("mdat", std::uint64_t{1} << 63, {}), emptyMovie()}),
       "error: truncated movie"},
      {joined({fileType("mp42"), Writer().u32(7).text("mdat"), emptyMovie()}),
       "error: movie without a header (\"moov\")"},
  };
  for (const auto& row : cases) EXPECT_EQ(outcomeOf(row.bytes), row.outcome);
}

TEST(MovieLayout, ReadsAMovieThatIsCutOffInItsSamples) {
  Bytes bytes = webMovie();
  bytes.resize(bytes.size() - 50000);
  EXPECT_EQ(outcomeOf(bytes), "asset");
}

TEST(MovieLayout, TellsWhoseRulesHold) {
  const struct {
    Bytes bytes;
    FileFormat format;
  } cases[] = {
      {joined({fileType("qt  "), emptyMovie()}), FileFormat::quickTime},
      {emptyMovie(), FileFormat::quickTime},
      {joined({fileType("mp42"), emptyMovie()}), FileFormat::isoBaseMedia},
      {joined({fileType("3gp5"), emptyMovie()}), FileFormat::isoBaseMedia},
  };
  for (const auto& row : cases) {
    io::MemorySource source(row.bytes);
    const auto layout = readMovieLayout(source);
    ASSERT_TRUE(layout && *layout);
    EXPECT_EQ((*layout)->format, row.format);
  }
}

TEST(MovieLayout, PassesOnAFailedRead) {
  for (const std::uint64_t offset : {0U, 4U, 20U, 40U}) {
    io::FailingSource source(joined({fileType("qt  "), emptyMovie()}), offset,
                             io::FailingSource::Failure::error);
    EXPECT_FALSE(copyAsset(source)) << offset;
  }
}

}  // namespace
}  // namespace media::movie
