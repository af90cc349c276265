// SPDX-License-Identifier: MIT
#include "lumifact/views/value_kind.h"

#include "tests/lumifact/views/foundation_test.h"

namespace lumifact {
namespace {

using bridge::Object;

class ValueKindTest : public FoundationTest {};

struct KindCase {
  const char* what;
  Object value;
  ValueKind kind;
};

TEST_F(ValueKindTest, TellsSixKindsApart) {
  const KindCase cases[] = {
      {"integer", objects(3), ValueKind::number},
      {"boolean", objects(true), ValueKind::number},
      {"real", objects(0.5), ValueKind::number},
      {"string", text("a"), ValueKind::string},
      {"date", objects(model::Date{0}), ValueKind::date},
      {"data", objects(model::Data{1}), ValueKind::data},
      {"array", objects(model::Array{}), ValueKind::array},
      {"dictionary", objects(model::Dictionary{}), ValueKind::dictionary},
      {"null object", objects({}), ValueKind::unknown},
      {"url", bridge::NSURL::withString(text("http://a/")), ValueKind::unknown},
      {"nil", {}, ValueKind::unknown},
  };
  for (const KindCase& row : cases) {
    EXPECT_EQ(kindOf(row.value), row.kind) << row.what;
    EXPECT_EQ(isContainer(row.kind),
              row.kind == ValueKind::array || row.kind == ValueKind::dictionary);
  }
}

struct TextCase {
  const char* what;
  Object value;
  const char* expected;
};

TEST_F(ValueKindTest, ShowsScalarsAsTexts) {
  const TextCase cases[] = {
      {"string", text("sea, \xE2\x82\xAC"), "sea, \xE2\x82\xAC"},
      {"empty string", text(""), ""},
      {"integer", objects(-72), "-72"},
      {"real", objects(0.1), "0.1"},
      {"boolean", objects(true), "1"},
      {"UTF-8", objects(model::Data{'a', 'b', 'c'}), "abc"},
      {"no bytes", objects(model::Data{}), ""},
      {"no UTF-8", objects(model::Data{0xFF, 0xFE}), "<fffe>"},
      {"long no UTF-8", objects(model::Data{0xFF, 1, 2, 3, 4}), "<ff010203 04>"},
      {"surrogate", objects(model::Data{0xED, 0xA0, 0x80}), "<eda080>"},
      {"overlong", objects(model::Data{0xC0, 0x80}), "<c080>"},
      {"date", objects(model::Date{1538309000}), "9/30/18, 2:03:20 PM"},
  };
  for (const TextCase& row : cases)
    EXPECT_EQ(displayText(row.value).utf8(), row.expected) << row.what;
}

TEST_F(ValueKindTest, KeepsControlCharacters) {
  const std::string controls("a\0b\x1B\x7F\n", 6);
  EXPECT_EQ(displayText(text(controls)).utf8(), controls);
  EXPECT_EQ(displayText(objects(model::Data(controls.begin(), controls.end()))).utf8(), controls);
}

TEST_F(ValueKindTest, ShowsNothingOfContainersAndUnknownThings) {
  for (const Object value :
       {objects(model::Array{1}), objects(model::Dictionary{{"a", 1}}), objects({}), Object()})
    EXPECT_FALSE(displayText(value));
}

}  // namespace
}  // namespace lumifact
