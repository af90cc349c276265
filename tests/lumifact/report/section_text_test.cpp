// SPDX-License-Identifier: MIT
#include "lumifact/report/section_text.h"

#include <gtest/gtest.h>

namespace lumifact {
namespace {

using model::Array;
using model::Dictionary;

TEST(SectionText, JoinsElementsInBrackets) {
  EXPECT_EQ(bracketed({}), "[]");
  EXPECT_EQ(bracketed({25}), "[25]");
  EXPECT_EQ(bracketed({"a b", 1.5, true}), "[a b, 1.5, 1]");
}

TEST(SectionText, DescribesContainersInsideBrackets) {
  EXPECT_EQ(bracketed({Array{1, 2}, 3}), "[(\n    1,\n    2\n), 3]");
}

TEST(SectionText, RewritesValuesInPlace) {
  const Reading reading = [](std::string_view key, const model::Value&) {
    return key == "b" ? std::optional<std::string>("read") : std::nullopt;
  };
  Dictionary section = {{"B", 1}, {"a", 2}, {"b", 3}};
  std::string text;
  appendRewrittenSection(text, "{Name}", section, reading, model::compareKeys);
  EXPECT_EQ(text, "\n\n{Name} =\n{\n  a = 2\n  B = 1\n  b = read\n}");
  EXPECT_EQ(section, (Dictionary{{"B", 1}, {"a", 2}, {"b", "read"}}));
}

TEST(SectionText, DescribesWithTwoBlanksALevel) {
  std::string text;
  appendDescribedSection(text, "{JFIF}", Dictionary{{"a", Dictionary{{"b", 1}}}});
  EXPECT_EQ(text, "\n\n{JFIF} = \n{\n  a = {\n    b = 1;\n  };\n}");
}

TEST(SectionText, HalvesBlanksInsideValuesToo) {
  std::string text;
  appendDescribedSection(text, "{X}", Dictionary{{"a", "1     2"}});
  EXPECT_EQ(text, "\n\n{X} = \n{\n  a = \"1   2\";\n}");
}

}  // namespace
}  // namespace lumifact
