// SPDX-License-Identifier: MIT
#include "workers/fields.h"

#include <gmock/gmock.h>

namespace workers {

namespace {

std::vector<std::uint8_t> sample() {
  return FieldWriter().number(-7).number(2.5).flag(true).text("text").take();
}

TEST(Fields, AreReadAsTheyWereWritten) {
  const auto bytes = sample();
  FieldReader fields(bytes);
  EXPECT_EQ(fields.number<int>(), -7);
  EXPECT_EQ(fields.number<double>(), 2.5);
  EXPECT_TRUE(fields.flag());
  EXPECT_EQ(fields.text(4), "text");
  EXPECT_TRUE(fields.isWhole());
}

TEST(Fields, AreNotWholeWhileSomethingIsLeft) {
  const auto bytes = sample();
  FieldReader fields(bytes);
  fields.number<int>();
  EXPECT_TRUE(fields.isRight());
  EXPECT_FALSE(fields.isWhole());
}

TEST(Fields, AreNothingFromTheFirstThatIsNotThere) {
  const auto bytes = sample();
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    FieldReader fields(std::span<const std::uint8_t>(bytes).first(length));
    fields.number<int>();
    fields.number<double>();
    fields.flag();
    EXPECT_EQ(fields.text(4), "") << length;
    EXPECT_FALSE(fields.isRight()) << length;
    EXPECT_EQ(fields.number<int>(), 0) << length;
  }
}

TEST(Fields, AreRefusedBeyondTheirLimits) {
  const auto text = FieldWriter().text("text").take();
  FieldReader shorter(text);
  EXPECT_EQ(shorter.text(3), "");
  EXPECT_FALSE(shorter.isRight());
  const auto number = FieldWriter().number(std::uint8_t{5}).take();
  FieldReader smaller(number);
  EXPECT_EQ(smaller.oneOf(std::uint8_t{4}), 0);
  EXPECT_FALSE(smaller.isRight());
  const auto negative = FieldWriter().number(-1).take();
  FieldReader positive(negative);
  EXPECT_EQ(positive.oneOf(9), 0);
  EXPECT_FALSE(positive.isRight());
  const auto neither = FieldWriter().number(std::uint8_t{2}).take();
  FieldReader flags(neither);
  EXPECT_FALSE(flags.flag());
  EXPECT_FALSE(flags.isRight());
}

}  // namespace

}  // namespace workers
