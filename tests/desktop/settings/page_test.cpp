// SPDX-License-Identifier: MIT
#include "desktop/settings/page.h"

#include <gtest/gtest.h>

namespace desktop::settings {
namespace {

const Row fourChoices{.kind = RowKind::list,
                      .choices = {{"None", 0}, {"All", 1}, {"Half", 0.5}, {"By Name", "name"}}};

TEST(Page, AValueIsTheChoiceThatReadersTakeItFor) {
  const struct {
    model::Value value;
    const char* title;  // null: no choice
  } cases[] = {{1, "All"},      {1.0, "All"},  {true, "All"},
               {false, "None"}, {0.5, "Half"}, {"name", "By Name"},
               {"1", nullptr},  {2, nullptr},  {model::Value(), nullptr}};
  for (const auto& [value, title] : cases) {
    const Choice* const choice = choiceOf(fourChoices, value);
    EXPECT_EQ(choice ? choice->title : "none", title ? title : "none")
        << static_cast<int>(value.kind());
  }
}

TEST(Page, AValueThatIsNoChoiceIsShownAsItIs) {
  const struct {
    model::Value value;
    const char* shown;
  } cases[] = {{1, "All"},           {7, "7"},         {12.5, "12.5"},
               {12.0, "12"},         {-0.25, "-0.25"}, {100, "100"},
               {1.0 / 3, "0.33"},    {"text", "text"}, {model::Value(), ""},
               {model::Array{1}, ""}};
  for (const auto& [value, shown] : cases) EXPECT_EQ(shownText(fourChoices, value), shown);
  EXPECT_EQ(shownText({}, true), "On");
  EXPECT_EQ(shownText({}, false), "Off");
}

TEST(Page, AnExplanationHasNoRows) {
  const Page page = explainedPage("Sample", "It is broken.");
  EXPECT_EQ(page.title, "Sample");
  ASSERT_EQ(page.groups.size(), 1U);
  EXPECT_TRUE(page.groups[0].rows.empty());
  EXPECT_EQ(page.groups[0].footer, "It is broken.");
}

}  // namespace
}  // namespace desktop::settings
