// SPDX-License-Identifier: MIT
#include "apps/lumifact/json/json.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "model/description.h"
#include "model/utf8.h"

namespace lumifact::tool {
namespace {

using model::Array;
using model::Data;
using model::Date;
using model::Dictionary;
using model::Value;

std::string written(const Value& value) {
  std::string text;
  appendJson(text, value);
  return text;
}

struct Pair {
  Value value;
  std::string_view json;
};

// Values whose text reads back as the same value.
const Pair pairs[] = {
    {Value(), "null"},
    {true, "true"},
    {false, "false"},
    {72, "72"},
    {72.0, "72.0"},
    {-0.0, "-0.0"},
    {0.1, "0.1"},
    {1e16, "1e+16"},
    {1e-05, "1e-05"},
    {1.7976931348623157e308, "1.7976931348623157e+308"},
    {std::numeric_limits<std::int64_t>::min(), "-9223372036854775808"},
    {std::numeric_limits<std::uint64_t>::max(), "18446744073709551615"},
    {std::numeric_limits<std::int64_t>::max(), "9223372036854775807"},
    {std::numeric_limits<double>::infinity(), R"({"$real":"inf"})"},
    {-std::numeric_limits<double>::infinity(), R"({"$real":"-inf"})"},
    {"", R"("")"},
    {"90\u00b0 CW", "\"90\u00b0 CW\""},
    {"\"\\\n\t/", R"("\"\\\n\t/")"},
    {std::string("\0\x1b\x7f", 3), R"("\u0000\u001b\u007f")"},
    {"\u009b\u202e\u2066", R"("\u009b\u202e\u2066")"},
    {"\u200e\u2028\U000e0041", R"("\u200e\u2028\udb40\udc41")"},
    {Data{}, R"({"$data":""})"},
    {Data{0x6c, 0x75, 0x6d, 0x69, 0x66}, R"({"$data":"bHVtaWY="})"},
    {Date{1538309591}, R"({"$date":"2018-09-30T12:13:11Z"})"},
    {Date{1538309591.25}, R"({"$date":"2018-09-30T12:13:11.25Z"})"},
    {Date{-0.5}, R"({"$date":"1969-12-31T23:59:59.5Z"})"},
    {Array{}, "[]"},
    {Dictionary{}, "{}"},
    {Array{1, "a", Array{2.5}}, R"([1,"a",[2.5]])"},
    {Dictionary{{"b", 1}, {"A", Dictionary{{"x", true}}}}, R"({"A":{"x":true},"b":1})"},
    {Dictionary{{"$data", "AAAA"}}, R"({"$dictionary":{"$data":"AAAA"}})"},
    {Dictionary{{"$dictionary", Dictionary{}}}, R"({"$dictionary":{"$dictionary":{}}})"},
    {Dictionary{{"$data", 1}, {"x", 2}}, R"({"$data":1,"x":2})"},
};

TEST(Json, WritesEveryKindAndReadsItBack) {
  for (const auto& [value, json] : pairs) {
    EXPECT_EQ(written(value), json);
    const auto read = parseJson(json);
    ASSERT_TRUE(read) << json << ": " << read.error().reason;
    EXPECT_EQ(*read, value) << json;
  }
}

TEST(Json, WritesANumberThatIsNoneAndReadsItBack) {
  EXPECT_EQ(written(std::nan("")), R"({"$real":"nan"})");
  const auto read = parseJson(R"({"$real":"nan"})");
  ASSERT_TRUE(read && read->asReal() != nullptr);
  EXPECT_TRUE(std::isnan(*read->asReal()));
}

TEST(Json, IsValidUtf8WhateverTheStringHolds) {
  EXPECT_EQ(written("a\xff\xc3"), "\"a\uFFFD\uFFFD\"");
  std::string path;
  appendJsonString(path, "IMG\x80.JPG");
  EXPECT_TRUE(model::isValidUtf8(path));
}

TEST(Json, ADateNeverMovesToTheNextSecond) {
  EXPECT_EQ(written(Date{10.9999999}), R"({"$date":"1970-01-01T00:00:10.999999Z"})");
  EXPECT_EQ(written(Date{std::nan("")}), R"({"$date":"1970-01-01T00:00:00Z"})");
}

TEST(Json, ReadsNumbersByHowTheyAreWritten) {
  const Pair numbers[] = {{1e2, "1e2"},
                          {1.0, "1.0"},
                          {-5, "-5"},
                          {std::uint64_t{1} << 63, "9223372036854775808"},
                          {18446744073709551616.0, "18446744073709551616"},
                          {-9223372036854775808.0 * 4, "-36893488147419103232"},
                          {1e-320, "1e-320"}};
  for (const auto& [value, json] : numbers) {
    const auto read = parseJson(json);
    ASSERT_TRUE(read) << json << ": " << read.error().reason;
    EXPECT_EQ(*read, value) << json;
  }
}

TEST(Json, OfADoubledKeyTheLastCounts) {
  const auto read = parseJson(R"({"a": 1, "b": 2, "a": 3})");
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, Value(Dictionary{{"a", 3}, {"b", 2}}));
}

TEST(Json, RefusesWithAReason) {
  const std::pair<std::string_view, std::string_view> refused[] = {
      {"", "parse error at line 1, column 1"},
      {"{", "parse error"},
      {"hello", "parse error"},
      {"{\"a\": 1} x", "parse error"},
      {"[1,]", "parse error"},
      {"NaN", "parse error"},
      {"\"\xff\"", "parse error"},
      {R"("\ud800")", "parse error"},
      {"1e999", "number overflow"},
      {R"({"$data": "Z"})", "\"$data\" holds no base64 text"},
      {R"({"$data": 5})", "\"$data\" holds no base64 text"},
      {R"({"$date": "yesterday"})", "\"$date\" holds no ISO 8601 date in UTC"},
      {R"({"$date": "2018-02-30T00:00:00Z"})", "\"$date\" holds no ISO 8601 date in UTC"},
      {R"({"$date": "2018-02-20T00:00:00+01:00"})", "\"$date\" holds no ISO 8601 date in UTC"},
      {R"({"$real": "1"})", "\"$real\" holds none of"},
      {R"({"$dictionary": 1})", "\"$dictionary\" holds no object"},
  };
  for (const auto& [json, reason] : refused) {
    const auto read = parseJson(json);
    ASSERT_FALSE(read) << json;
    EXPECT_TRUE(read.error().reason.starts_with(reason)) << json << ": " << read.error().reason;
  }
}

TEST(Json, BoundsTheNesting) {
  const auto nested = [](std::size_t levels) {
    return parseJson(std::string(levels, '[') + std::string(levels, ']'));
  };
  EXPECT_TRUE(nested(model::maximumNesting));
  ASSERT_FALSE(nested(model::maximumNesting + 1));
  EXPECT_EQ(nested(1'000'000).error().reason, "nested too deeply");
}

}  // namespace
}  // namespace lumifact::tool
