// SPDX-License-Identifier: MIT
#include "apps/lumifact/base64.h"

#include <gtest/gtest.h>

namespace lumifact::tool {
namespace {

model::Data bytes(std::string_view text) {
  return {text.begin(), text.end()};
}

// RFC 4648, section 10.
constexpr std::pair<std::string_view, std::string_view> vectors[] = {
    {"", ""},
    {"f", "Zg=="},
    {"fo", "Zm8="},
    {"foo", "Zm9v"},
    {"foob", "Zm9vYg=="},
    {"fooba", "Zm9vYmE="},
    {"foobar", "Zm9vYmFy"},
};

TEST(Base64, WritesAndReadsTheStandardsVectors) {
  for (const auto& [plain, coded] : vectors) {
    std::string text = "x";
    appendBase64(text, bytes(plain));
    EXPECT_EQ(text, "x" + std::string(coded)) << plain;
    EXPECT_EQ(dataFromBase64(coded), bytes(plain)) << coded;
  }
}

TEST(Base64, KeepsEveryByte) {
  model::Data all(256);
  for (std::size_t index = 0; index < all.size(); ++index) {
    all[index] = static_cast<std::uint8_t>(index);
  }
  std::string text;
  appendBase64(text, all);
  EXPECT_EQ(dataFromBase64(text), all);
}

TEST(Base64, RefusesWhatIsNoWholeText) {
  for (const std::string_view text :
       {"Z", "Zg", "Zg=", "Zg==Zg==", "Z===", "====", "Zm9 ", "Zm\n="}) {
    EXPECT_EQ(dataFromBase64(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace lumifact::tool
