// SPDX-License-Identifier: MIT
#include "foundation/property_lists/base64.h"

#include <gtest/gtest.h>

namespace foundation {
namespace {

model::Data bytesOf(std::string_view text) {
  return {text.begin(), text.end()};
}

TEST(Base64Test, writesAndReadsThePublishedVectors) {
  const struct {
    std::string_view bytes;
    std::string_view text;
  } cases[] = {
      {"", ""},
      {"f", "Zg=="},
      {"fo", "Zm8="},
      {"foo", "Zm9v"},
      {"foob", "Zm9vYg=="},
      {"fooba", "Zm9vYmE="},
      {"foobar", "Zm9vYmFy"},
      {"\xFB\xFF\xBF", "+/+/"},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(base64Text(bytesOf(row.bytes)), row.text) << row.bytes;
    EXPECT_EQ(dataFromBase64(row.text), bytesOf(row.bytes)) << row.text;
  }
}

TEST(Base64Test, refusesWhatIsNoWholeText) {
  for (const std::string_view text :
       {"Z", "Zg", "Zg=", "====", "Zg==Zg==", "Z===", "Zm 9", "Zm9-"}) {
    EXPECT_EQ(dataFromBase64(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace foundation
