// SPDX-License-Identifier: MIT
#include "media/image/blocks/inflate.h"

#include <gtest/gtest.h>

#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

TEST(Inflate, theBudgetPaysForWhatIsDecompressed) {
  const std::string stream = deflated(std::string(100'000, 'x'));
  std::size_t budget = 250'000;
  for (const std::size_t left : {std::size_t{150'000}, std::size_t{50'000}}) {
    const auto bytes = inflateBytes(viewOf(stream), budget);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(*bytes, std::vector<std::uint8_t>(100'000, 'x'));
    EXPECT_EQ(budget, left);
  }
  EXPECT_FALSE(inflateBytes(viewOf(stream), budget));
  EXPECT_EQ(budget, 0U);
  EXPECT_FALSE(inflateBytes(viewOf(stream), budget));
}

TEST(Inflate, aStreamThatJustFitsIsWhole) {
  std::size_t budget = 70'000;
  EXPECT_TRUE(inflateBytes(viewOf(deflated(std::string(70'000, 'x'))), budget));
  std::size_t tooSmall = 69'999;
  EXPECT_FALSE(inflateBytes(viewOf(deflated(std::string(70'000, 'x'))), tooSmall));
}

TEST(Inflate, damagedStreamsGiveNothing) {
  const std::string stream = deflated("some text that is compressed");
  for (std::size_t length = 0; length < stream.size(); ++length) {
    std::size_t budget = 1000;
    EXPECT_FALSE(inflateBytes(viewOf(std::string_view(stream).substr(0, length)), budget))
        << length;
  }
  std::size_t budget = 1000;
  EXPECT_FALSE(inflateBytes(viewOf("no stream"), budget));
}

TEST(Inflate, anEmptyStreamIsEmpty) {
  std::size_t budget = 1000;
  const auto bytes = inflateBytes(viewOf(deflated("")), budget);
  ASSERT_TRUE(bytes);
  EXPECT_TRUE(bytes->empty());
}

}  // namespace
}  // namespace media::image
