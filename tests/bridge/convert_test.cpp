// SPDX-License-Identifier: MIT
#include "bridge/convert.h"

#include <gtest/gtest.h>

#include <limits>

#include "bridge/foundation.h"

namespace bridge {
namespace {

using model::Value;

class ConvertTest : public testing::Test {
 protected:
  const AutoreleasePool pool;
};

TEST_F(ConvertTest, EveryKindGoesThereAndBack) {
  const Value values[] = {
      Value(),
      true,
      false,
      0,
      1,
      72,
      -5,
      std::numeric_limits<std::int64_t>::min(),
      std::numeric_limits<std::int64_t>::max(),
      std::uint64_t{1} << 63,
      std::numeric_limits<std::uint64_t>::max(),
      72.0,
      0.25,
      -1e300,
      "",
      "Grüße 🙂",
      std::string("a\0b", 3),
      model::Date{1538316191.5},
      model::Data{},
      model::Data{0, 255, 7},
      model::Array{},
      model::Array{1, "two", 3.0, model::Array{Value()}},
      model::Dictionary{},
      model::Dictionary{{"{Exif}", model::Dictionary{{"Flash", 16}}}, {"Depth", 8}},
  };
  for (const Value& value : values)
    EXPECT_EQ(toValue(toObject(value)), value) << static_cast<int>(value.kind());
}

TEST_F(ConvertTest, NothingIsNull) {
  EXPECT_TRUE(toValue(Object()).isNull());
}

TEST_F(ConvertTest, SinglePrecisionNumbersAreTheirShortestDecimal) {
  const auto number = send<NSNumber, "numberWithFloat:">(NSNumber::classObject(), 0.1F);
  EXPECT_EQ(toValue(number), Value(0.1));
}

TEST_F(ConvertTest, OtherObjectsBecomeTheirDescription) {
  const auto object = makeNew<NSObject>();
  EXPECT_EQ(toValue(object), Value(object->description().utf8()));
}

TEST_F(ConvertTest, KeysThatAreNoStringsBecomeTheirDescription) {
  const auto dictionary = makeNew<NSMutableDictionary>();
  dictionary->set(NSString::make("seven"), NSNumber::withInt(7));
  EXPECT_EQ(toValue(dictionary), Value(model::Dictionary{{"7", "seven"}}));
}

TEST_F(ConvertTest, ACollectionThatContainsItselfComesToAnEnd) {
  const auto array = makeNew<NSMutableArray>();
  array->add(array);
  EXPECT_EQ(toValue(array).kind(), model::Kind::array);
  send<void, "removeAllObjects">(array);
}

TEST_F(ConvertTest, ChangesAreWrittenAndAllElseIsKept) {
  const model::Dictionary before = {
      {"Depth", 8},
      {"Gone", 1},
      {"{Exif}", model::Dictionary{{"Flash", 16}, {"Gone", 1}, {"ISO", model::Array{100}}}},
      {"{TIFF}", model::Dictionary{{"Make", "A"}}}};
  const model::Dictionary after = {
      {"Depth", 8},
      {"New", "value"},
      {"{Exif}", model::Dictionary{{"Flash", "fired"}, {"ISO", model::Array{100}}}},
      {"{TIFF}", model::Dictionary{{"Make", "A"}}}};
  const auto original = as<NSDictionary>(toObject(before).autorelease());
  const auto key = [](const char* text) { return NSString::make(text); };
  const Object tiff = original.at(key("{TIFF}"));
  const auto exif = as<NSDictionary>(original.at(key("{Exif}")));
  const Object iso = exif.at(key("ISO"));

  const auto target = mutableCopy(original);
  writeChanges(target, before, after);

  EXPECT_EQ(toValue(target), Value(after));
  EXPECT_EQ(target->at(key("{TIFF}")), tiff) << "what did not change is the same object";
  EXPECT_EQ(as<NSDictionary>(target->at(key("{Exif}"))).at(key("ISO")), iso);
  EXPECT_EQ(toValue(original), Value(before)) << "the original is not touched";
}

TEST_F(ConvertTest, AValueMayTurnIntoAnotherKind) {
  const model::Dictionary before = {{"a", model::Dictionary{{"b", 1}}}, {"c", 1}};
  const model::Dictionary after = {{"a", "text"}, {"c", model::Dictionary{{"d", 2}}}};
  const auto target = mutableCopy(as<NSDictionary>(toObject(before).autorelease()));
  writeChanges(target, before, after);
  EXPECT_EQ(toValue(target), Value(after));
}

}  // namespace
}  // namespace bridge
