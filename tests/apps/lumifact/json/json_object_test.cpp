// SPDX-License-Identifier: MIT
#include "apps/lumifact/json/json_object.h"

#include <gtest/gtest.h>

namespace lumifact::tool {
namespace {

TEST(JsonObject, StandsBehindWhatIsThere) {
  std::string text = "[";
  { const JsonObject object(text); }
  EXPECT_EQ(text, "[{}");
}

TEST(JsonObject, HoldsItsFieldsInTheirOrder) {
  std::string text;
  JsonObject(text)
      .field("b", "x")
      .field("a", std::string("y"))
      .field("tree", model::Dictionary{{"n", 1}})
      .field("none", std::optional<std::string>())
      .field("some", std::optional<std::string>("z"))
      .field("no tree", std::optional<model::Dictionary>());
  EXPECT_EQ(text, R"({"b":"x","a":"y","tree":{"n":1},"none":null,"some":"z","no tree":null})");
}

TEST(JsonObject, EscapesNamesAndTexts) {
  std::string text;
  JsonObject(text).field("a\"\n", "\x1b\xff");
  EXPECT_EQ(text, "{\"a\\\"\\n\":\"\\u001b\uFFFD\"}");
}

TEST(JsonObject, LeavesAFieldToItsWriter) {
  std::string text;
  {
    JsonObject object(text);
    object.begin("list") += "[1]";
    JsonObject(object.begin("inner")).field("x", "y");
    object.field("last", "");
  }
  EXPECT_EQ(text, R"({"list":[1],"inner":{"x":"y"},"last":""})");
}

}  // namespace
}  // namespace lumifact::tool
