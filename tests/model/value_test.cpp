// SPDX-License-Identifier: MIT
#include "model/value.h"

#include <gtest/gtest.h>

#include <limits>

namespace model {
namespace {

TEST(Value, KnowsItsKind) {
  struct Row {
    Value value;
    Kind kind;
  };
  const Row rows[] = {
      {Value(), Kind::null},
      {true, Kind::boolean},
      {1, Kind::integer},
      {std::uint8_t{1}, Kind::integer},
      {1L, Kind::integer},
      {'a', Kind::integer},
      {std::numeric_limits<std::uint64_t>::max() / 2, Kind::integer},
      {std::numeric_limits<std::uint64_t>::max() / 2 + 1, Kind::largeInteger},
      {std::numeric_limits<std::uint64_t>::max(), Kind::largeInteger},
      {1.0, Kind::real},
      {1.0F, Kind::real},
      {"text", Kind::string},
      {std::string("text"), Kind::string},
      {std::string_view("text"), Kind::string},
      {Date{}, Kind::date},
      {Data{1}, Kind::data},
      {Array{1}, Kind::array},
      {Dictionary{{"a", 1}}, Kind::dictionary},
  };
  for (const Row& row : rows) EXPECT_EQ(row.value.kind(), row.kind);
  EXPECT_TRUE(Value().isNull());
  EXPECT_FALSE(Value(0).isNull());
}

TEST(Value, GivesItsContentToTheRightQuestionOnly) {
  const Value value = 7;
  ASSERT_NE(value.asInteger(), nullptr);
  EXPECT_EQ(*value.asInteger(), 7);
  EXPECT_EQ(value.asBoolean(), nullptr);
  EXPECT_EQ(value.asReal(), nullptr);
  EXPECT_EQ(value.asString(), nullptr);
  EXPECT_EQ(value.asDate(), nullptr);
  EXPECT_EQ(value.asData(), nullptr);
  EXPECT_EQ(value.asArray(), nullptr);
  EXPECT_EQ(value.asDictionary(), nullptr);
  EXPECT_EQ(*Value(true).asBoolean(), true);
  EXPECT_EQ(*Value(0.5).asReal(), 0.5);
  EXPECT_EQ(*Value("a").asString(), "a");
  EXPECT_EQ(*Value(Date{3}).asDate(), Date{3});
  EXPECT_EQ(*Value(Data{3}).asData(), Data{3});
}

TEST(Value, TellsKindsApartWhenCompared) {
  const Value values[] = {
      Value(), true, 1, 1.0, "1", Date{1}, Data{1}, Array{1}, Dictionary{{"1", 1}}};
  for (const Value& left : values) {
    for (const Value& right : values) EXPECT_EQ(left == right, &left == &right);
  }
}

TEST(Value, ComparesByContent) {
  EXPECT_EQ(Value(Array{1, "a"}), Value(Array{1, "a"}));
  EXPECT_NE(Value(Array{1, "a"}), Value(Array{"a", 1}));
  EXPECT_EQ(Value(Dictionary{{"a", Array{}}}), Value(Dictionary{{"a", Array{}}}));
  EXPECT_NE(Value(Dictionary{{"a", 1}}), Value(Dictionary{{"a", 2}}));
  EXPECT_EQ(Value(0.0), Value(-0.0));
  const Value notANumber = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(notANumber == notANumber);
}

TEST(Value, CopiesTheWholeTree) {
  Value original = Dictionary{{"a", Array{1}}};
  const Value copy = original;
  find(*original.asDictionary(), "a")->asArray()->push_back(2);
  EXPECT_EQ(copy, Value(Dictionary{{"a", Array{1}}}));
  EXPECT_EQ(original, Value(Dictionary{{"a", Array{1, 2}}}));
}

TEST(Value, IsFoundByItsExactKey) {
  Dictionary dictionary = {{"a", 1}, {"A", 2}};
  const Dictionary& constant = dictionary;
  EXPECT_EQ(*find(constant, "A"), Value(2));
  EXPECT_EQ(find(constant, "b"), nullptr);
  EXPECT_EQ(find(constant, ""), nullptr);
  *find(dictionary, "a") = "new";
  EXPECT_EQ(*find(constant, "a"), Value("new"));
  EXPECT_EQ(find(dictionary, "b"), nullptr);
}

}  // namespace
}  // namespace model
