// SPDX-License-Identifier: MIT
#include "apps/lumifact/texts/setting_text.h"

#include <gtest/gtest.h>

#include <utility>

#include "lumifact/state/settings.h"

namespace lumifact::tool {
namespace {

using model::Value;

TEST(SettingText, ReadsByTheKindOfTheKey) {
  struct Case {
    const char* key;
    const char* text;
    Value value;
  };
  const Case cases[] = {
      {"showSelectedSize", "true", true},
      {"showSelectedSize", "yes", true},
      {"showSelectedSize", "YES", true},
      {"showSelectedSize", "1", true},
      {"showSelectedSize", "false", false},
      {"showSelectedSize", "no", false},
      {"showSelectedSize", "0", false},
      {"fontSize", "14", 14},
      {"fontSize", "-5", -5},
      {"fontSize", "+5", 5},
      {"fontSize", "99999999999", 99999999999},
      {"mapZoomLevel", "12.5", 12.5},
      {"mapZoomLevel", "12", 12.0},
      {"mapZoomLevel", "1e2", 100.0},
      {"mapZoomLevel", "-0.5", -0.5},
      {"thumbnailInfoDisplayOneLine", "no", false},
  };
  for (const Case& item : cases) {
    const auto value = settingFromText(item.key, item.text);
    ASSERT_TRUE(value) << item.key << " " << item.text;
    EXPECT_EQ(*value, item.value) << item.key << " " << item.text;
  }
}

TEST(SettingText, RefusesWhatDoesNotReadAsTheKind) {
  const std::pair<const char*, const char*> refused[] = {
      {"showSelectedSize", "maybe"}, {"showSelectedSize", ""},
      {"showSelectedSize", "2"},     {"fontSize", "12.5"},
      {"fontSize", "big"},           {"fontSize", ""},
      {"fontSize", "12 "},           {"fontSize", "+-1"},
      {"fontSize", "0x10"},          {"mapZoomLevel", "nan"},
      {"mapZoomLevel", "inf"},       {"mapZoomLevel", "1e999"},
      {"mapZoomLevel", "1,5"},       {"fontSize", "9999999999999999999"},
  };
  for (const auto& [key, text] : refused) {
    const auto value = settingFromText(key, text);
    ASSERT_FALSE(value) << key << " " << text;
    EXPECT_TRUE(value.error().reason.starts_with(std::string(key) + " takes "))
        << value.error().reason;
  }
}

TEST(SettingText, AnUnknownKeyIsAnsweredWithTheKnownOnes) {
  const auto error = checkSettingKey("fontsize");
  ASSERT_TRUE(error);
  EXPECT_NE(error->reason.find("unknown setting \"fontsize\""), std::string::npos);
  for (const SettingRow& row : settingRows()) {
    EXPECT_NE(error->reason.find(row.key), std::string::npos) << row.key;
    EXPECT_FALSE(checkSettingKey(row.key)) << row.key;
  }
}

}  // namespace
}  // namespace lumifact::tool
