// SPDX-License-Identifier: MIT
#include "desktop/settings/page_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "desktop/settings/page_limits.h"
#include "tests/desktop/settings/sample_page.h"
#include "tests/support/kept_seed.h"
#include "tests/support/temporary_folder.h"

namespace desktop::settings {
namespace {

using testing::SizeIs;

// The only row of a page of one cell.
Row rowOf(const model::Dictionary& cell) {
  support::keepSeed(xmlOf(pageOf("Sample", {cell})));
  const auto page = parsePage(pageOf("Sample", {cell}));
  EXPECT_TRUE(page) << (page ? "" : page.error().reason);
  return page ? page->groups.at(0).rows.at(0) : Row();
}

std::string whyNot(const model::Value& list) {
  const auto page = parsePage(list);
  return page ? "it is a page" : page.error().reason;
}

std::string whyNotCell(const model::Dictionary& cell) {
  return whyNot(pageOf("Sample", {cell}));
}

model::Dictionary with(model::Dictionary cell, const char* key, model::Value value) {
  cell.insert_or_assign(key, std::move(value));
  return cell;
}

model::Dictionary without(model::Dictionary cell, const char* key) {
  cell.erase(key);
  return cell;
}

TEST(PageReader, ReadsTitlesAndGroups) {
  const auto group = model::Dictionary{
      {"cell", "PSGroupCell"}, {"label", "Look"}, {"footerText", "How it looks."}};
  const auto page = parsePage(pageOf("Sample", {switchCell(), group, listCell(), sliderCell()}));
  ASSERT_TRUE(page) << page.error().reason;
  EXPECT_EQ(page->name, "Sample");
  EXPECT_EQ(page->title, "Sample Settings");
  ASSERT_THAT(page->groups, SizeIs(2));
  EXPECT_EQ(page->groups[0].header, "");
  EXPECT_THAT(page->groups[0].rows, SizeIs(1));
  EXPECT_EQ(page->groups[1].header, "Look");
  EXPECT_EQ(page->groups[1].footer, "How it looks.");
  EXPECT_THAT(page->groups[1].rows, SizeIs(2));
}

TEST(PageReader, APageWithoutATitleHasItsName) {
  const auto page = parsePage(model::Dictionary{{"entry", model::Dictionary{{"label", "Sample"}}},
                                                {"items", model::Array{}}});
  ASSERT_TRUE(page);
  EXPECT_EQ(page->title, "Sample");
  EXPECT_THAT(page->groups, SizeIs(0));
}

TEST(PageReader, ASwitchIsAFlagWithItsPlace) {
  const Row row = rowOf(switchCell());
  EXPECT_EQ(row.kind, RowKind::toggle);
  EXPECT_EQ(row.label, "Colours");
  EXPECT_TRUE(row.isEnabled);
  EXPECT_EQ(row.place.domain, "com.example.sample");
  EXPECT_EQ(row.place.key, "areColoursShown");
  EXPECT_EQ(row.place.notification, "com.example.sample/changed");
  EXPECT_EQ(row.standard, model::Value(true));
  EXPECT_EQ(rowOf(with(switchCell(), "default", 0)).standard, model::Value(false));
  EXPECT_EQ(rowOf(without(switchCell(), "default")).standard, model::Value(false));
  EXPECT_FALSE(rowOf(with(switchCell(), "enabled", false)).isEnabled);
}

TEST(PageReader, ChoicesKeepTheTypesOfTheirValues) {
  const auto values = model::Array{1, "two"};
  const Row row = rowOf(with(with(listCell(), "validValues", values), "default", "two"));
  EXPECT_EQ(row.kind, RowKind::list);
  ASSERT_THAT(row.choices, SizeIs(2));
  EXPECT_EQ(row.choices[0].title, "Small");
  EXPECT_EQ(row.choices[0].value, model::Value(1));
  EXPECT_EQ(row.choices[1].value, model::Value("two"));
  EXPECT_EQ(row.standard, model::Value("two"));
  EXPECT_EQ(rowOf(with(listCell(), "cell", "PSSegmentCell")).kind, RowKind::segments);
  EXPECT_TRUE(rowOf(without(listCell(), "default")).standard.isNull());
}

TEST(PageReader, ASliderHasItsRange) {
  const Row row = rowOf(sliderCell());
  EXPECT_EQ(row.kind, RowKind::slider);
  EXPECT_EQ(row.range.least, 0);
  EXPECT_EQ(row.range.greatest, 2.5);
  EXPECT_EQ(row.range.steps, 0);
  EXPECT_FALSE(row.range.showsValue);
  EXPECT_EQ(row.standard, model::Value(0.25));
  const Row stepped = rowOf(
      with(with(with(sliderCell(), "isSegmented", true), "segmentCount", 5), "showValue", true));
  EXPECT_EQ(stepped.range.steps, 5);
  EXPECT_TRUE(stepped.range.showsValue);
  const Row bare = rowOf(without(without(without(sliderCell(), "min"), "max"), "default"));
  EXPECT_EQ(bare.range.greatest, 1);
  EXPECT_EQ(bare.standard, model::Value(0.0));
}

TEST(PageReader, TextsAndValuesNeedNoPlace) {
  EXPECT_EQ(rowOf({{"cell", "PSStaticTextCell"}, {"label", "Hello"}}).kind, RowKind::text);
  const Row row = rowOf({{"cell", "PSTitleValueCell"}, {"label", "Version"}, {"default", "1.0"}});
  EXPECT_EQ(row.kind, RowKind::value);
  EXPECT_EQ(row.standard, model::Value("1.0"));
  EXPECT_EQ(row.place.key, "");
}

TEST(PageReader, OtherCellsAreUnknownRowsWithTheirLabel) {
  for (const char* type : {"PSButtonCell", "PSLinkCell", "PSGiantIconCell", "SomethingElse"}) {
    const Row row = rowOf({{"cell", type}, {"label", "Press"}, {"key", 5}});
    EXPECT_EQ(row.kind, RowKind::unknown) << type;
    EXPECT_EQ(row.label, "Press") << type;
  }
}

TEST(PageReader, RefusesWhatIsNoPage) {
  const struct {
    model::Value list;
    const char* reason;
  } cases[] = {
      {{}, "it is no dictionary"},
      {"text", "it is no dictionary"},
      {model::Array{}, "it is no dictionary"},
      {model::Dictionary{}, "\"entry\" is missing"},
      {model::Dictionary{{"entry", "Sample"}}, "\"entry\" is no dictionary"},
      {model::Dictionary{{"entry", model::Dictionary{{"label", 1}}}, {"items", model::Array{}}},
       "entry: \"label\" is no text"},
      {model::Dictionary{{"entry", model::Dictionary{}}, {"items", model::Array{}}},
       "entry: \"label\" is missing"},
      {model::Dictionary{{"entry", model::Dictionary{{"label", "Sample"}}}},
       "\"items\" is missing"},
      {model::Dictionary{{"entry", model::Dictionary{{"label", "Sample"}}}, {"items", 3}},
       "\"items\" is no array"},
      {pageOf("Sample", {switchCell(), "text"}), "row 2 is no dictionary"},
      {pageOf("Sample", {model::Dictionary{{"label", "no type"}}}), "row 1: \"cell\" is missing"},
  };
  for (const auto& [list, reason] : cases) EXPECT_EQ(whyNot(list), reason);
}

TEST(PageReader, RefusesKeysOfWrongTypes) {
  const struct {
    model::Dictionary cell;
    const char* key;
    model::Value value;
    const char* reason;
  } cases[] = {
      {switchCell(), "cell", 4, "row 1: \"cell\" is no text"},
      {switchCell(), "label", true, "row 1: \"label\" is no text"},
      {switchCell(), "key", 5, "row 1: \"key\" is no text"},
      {switchCell(), "key", "", "row 1: \"key\" is missing"},
      {switchCell(), "defaults", model::Array{}, "row 1: \"defaults\" is no text"},
      {switchCell(), "default", "yes", "row 1: \"default\" is neither true nor false"},
      {switchCell(), "enabled", "no", "row 1: \"enabled\" is neither true nor false"},
      {switchCell(), "PostNotification", 1, "row 1: \"PostNotification\" is no text"},
      {listCell(), "validTitles", "Small", "row 1: \"validTitles\" is no array"},
      {listCell(), "validTitles", model::Array{"Small", 2},
       "row 1: \"validTitles\" holds something else than short texts"},
      {listCell(), "validTitles", model::Array{"Small"},
       "row 1: \"validTitles\" does not go with \"validValues\""},
      {listCell(), "validValues", model::Dictionary{}, "row 1: \"validValues\" is no array"},
      {listCell(), "validValues", model::Array{1, model::Array{}},
       "row 1: \"validValues\" holds something else than numbers and texts"},
      {listCell(), "default", 3, "row 1: \"default\" is none of \"validValues\""},
      {sliderCell(), "min", "0", "row 1: \"min\" is no number"},
      {sliderCell(), "min", 2.5, "row 1: \"min\" is not below \"max\""},
      {sliderCell(), "max", std::numeric_limits<double>::quiet_NaN(),
       "row 1: \"max\" is no number"},
      {sliderCell(), "default", model::Data{1}, "row 1: \"default\" is no number"},
      {sliderCell(), "showValue", 0.5, "row 1: \"showValue\" is neither true nor false"},
  };
  for (const auto& [cell, key, value, reason] : cases)
    EXPECT_EQ(whyNotCell(with(cell, key, value)), reason);
  EXPECT_EQ(whyNotCell(without(listCell(), "validTitles")), "row 1: \"validTitles\" is missing");
  EXPECT_EQ(whyNotCell(without(switchCell(), "key")), "row 1: \"key\" is missing");
  EXPECT_EQ(whyNotCell(without(switchCell(), "defaults")), "row 1: \"defaults\" is missing");
  const auto steps = with(with(sliderCell(), "isSegmented", true), "segmentCount", -1);
  EXPECT_EQ(whyNotCell(steps), "row 1: \"segmentCount\" is out of range");
}

TEST(PageReader, NoPreferenceFileLiesOutsideTheirFolder) {
  const std::string names[] = {"../escape", "/etc/passwd",          ".",          "..",
                               "a/b",       std::string("a\0b", 3), "line\nbreak"};
  for (const std::string& name : names)
    EXPECT_EQ(whyNotCell(with(switchCell(), "defaults", name)),
              "row 1: \"defaults\" is no name of a preference file")
        << name;
}

TEST(PageReader, TakesAPageUpToItsLimitsAndNoFurther) {
  const model::Dictionary text{{"cell", "PSStaticTextCell"}, {"label", "Hello"}};
  EXPECT_EQ(whyNot(pageOf("Sample", model::Array(pageLimits.rows, text))), "it is a page");
  EXPECT_EQ(whyNot(pageOf("Sample", model::Array(pageLimits.rows + 1, text))),
            "\"items\" is too long");
  const std::string longest(pageLimits.text, 'a');
  EXPECT_EQ(whyNotCell(with(text, "label", longest)), "it is a page");
  EXPECT_EQ(whyNotCell(with(text, "label", longest + "a")), "row 1: \"label\" is too long");
  const auto choices = [](std::size_t count) {
    return with(with(without(listCell(), "default"), "validTitles", model::Array(count, "a")),
                "validValues", model::Array(count, 1));
  };
  EXPECT_EQ(whyNotCell(choices(pageLimits.choices)), "it is a page");
  EXPECT_EQ(whyNotCell(choices(pageLimits.choices + 1)), "row 1: \"validTitles\" is too long");
}

TEST(PageReader, RefusesNestingAlsoWhereNobodyLooks) {
  const auto nested = [](std::size_t levels) {
    model::Value value = "inside";
    while (levels-- > 0) value = model::Array{value};
    return pageOf("Sample", {with(switchCell(), "unheard of", value)});
  };
  constexpr std::size_t around = 3;  // the page, its items, the cell
  EXPECT_EQ(whyNot(nested(pageLimits.nesting - around)), "it is a page");
  EXPECT_EQ(whyNot(nested(pageLimits.nesting - around + 1)), "it is nested too deep");
}

TEST(PageReader, AFileIsNamedLikeItsEntry) {
  const support::TemporaryFolder folder;
  const std::string page = xmlOf(pageOf("Sample", {switchCell()}));
  EXPECT_TRUE(readPage(folder.write("Sample.plist", page)));
  const auto other = readPage(folder.write("Other.plist", page));
  ASSERT_FALSE(other);
  EXPECT_EQ(other.error().reason, "its file is not named \"Sample.plist\" as its entry is");
}

TEST(PageReader, DamagedFilesAreTold) {
  const support::TemporaryFolder folder;
  const std::string page = xmlOf(pageOf("Sample", {switchCell()}));
  const std::string damaged[] = {"", "no property list", page.substr(0, page.size() / 2),
                                 "bplist00", std::string(2 << 20, 'x')};
  for (const std::string& bytes : damaged) {
    const auto read = readPage(folder.write("Sample.plist", bytes));
    ASSERT_FALSE(read) << bytes.size();
    EXPECT_NE(read.error().reason, "");
  }
  EXPECT_FALSE(readPage(folder.file("missing.plist")));
}

}  // namespace
}  // namespace desktop::settings
