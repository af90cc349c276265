// SPDX-License-Identifier: MIT
#include "desktop/settings/page_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "desktop/settings/page_limits.h"
#include "tests/desktop/settings/sample_page.h"
#include "tests/support/temporary_folder.h"

namespace desktop::settings {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class PageFolderTest : public testing::Test {
 protected:
  // A page with one switch, which is kept in that preference file.
  void add(const std::string& name, const std::string& domain) {
    auto cell = switchCell();
    cell.insert_or_assign("defaults", domain);
    folder.write(name + ".plist", xmlOf(pageOf(name, {cell})));
  }
  std::vector<Page> read() {
    auto pages = readPages(folder.path());
    EXPECT_TRUE(pages) << (pages ? "" : pages.error().reason);
    return pages ? *pages : std::vector<Page>();
  }
  std::vector<std::string> names() {
    std::vector<std::string> all;
    for (const Page& page : read()) all.push_back(page.name);
    return all;
  }
  // What each page says instead of rows; empty for one that has them.
  std::vector<std::string> explanations() {
    std::vector<std::string> all;
    for (const Page& page : read())
      all.push_back(page.groups.at(0).rows.empty() ? page.groups[0].footer : "");
    return all;
  }

  support::TemporaryFolder folder;
};

TEST_F(PageFolderTest, HoldsItsPagesInTheOrderOfTheirNames) {
  for (const char* name : {"b", "C", "a"}) add(name, std::string("com.example.") + name);
  folder.write("notes.txt", "no page");
  folder.write(".hidden.plist", "no page");
  std::filesystem::create_directory(folder.file("folder.plist"));
  EXPECT_THAT(names(), ElementsAre("C", "a", "b"));
  EXPECT_THAT(explanations(), ElementsAre("", "", ""));
}

TEST_F(PageFolderTest, OneThatIsMissingHoldsNone) {
  const auto pages = readPages(folder.file("missing"));
  ASSERT_TRUE(pages);
  EXPECT_THAT(*pages, IsEmpty());
}

TEST_F(PageFolderTest, OneThatIsNoneIsTold) {
  EXPECT_FALSE(readPages(folder.write("file", "")));
}

TEST_F(PageFolderTest, APageThatCannotBeShownSaysWhyAndHasNoRows) {
  add("good", "com.example.good");
  folder.write("damaged.plist", "no property list");
  ASSERT_EQ(mkfifo(folder.file("pipe.plist").c_str(), 0600), 0);
  EXPECT_THAT(names(), ElementsAre("damaged", "good", "pipe"));
  EXPECT_THAT(explanations(), ElementsAre(StartsWith("This page cannot be shown: "), "",
                                          StartsWith("This page cannot be shown: ")));
}

TEST_F(PageFolderTest, OfTwoPagesWithOnePreferenceFileTheFirstHasIt) {
  add("Alpha", "com.example.same");
  add("Beta", "com.example.same");
  EXPECT_THAT(explanations(),
              ElementsAre("",
                          "This page cannot be shown: \"Alpha\" keeps its settings in the same "
                          "file, com.example.same."));
}

TEST_F(PageFolderTest, OfTwoPagesWhoseNamesAreOneTheFirstHasIt) {
  add("SAMPLE", "com.example.first");
  add("Sample", "com.example.second");
  EXPECT_THAT(explanations(),
              ElementsAre("", "This page cannot be shown: its name is that of \"SAMPLE\"."));
}

TEST_F(PageFolderTest, APageThatIsRefusedClaimsNothing) {
  add("A", "com.example.one");
  folder.write("B.plist", xmlOf(pageOf("A", {switchCell()})));
  add("C", "com.example.sample");  // as the refused page's switch
  EXPECT_THAT(explanations(),
              ElementsAre("", StartsWith("This page cannot be shown: its file"), ""));
}

TEST_F(PageFolderTest, AValueThatIsOnlyShownClaimsNothing) {
  auto cell = switchCell();
  cell.insert_or_assign("cell", "PSTitleValueCell");
  folder.write("A.plist", xmlOf(pageOf("A", {cell})));
  add("B", "com.example.sample");
  EXPECT_THAT(explanations(), ElementsAre("", ""));
}

TEST_F(PageFolderTest, MoreThanTheLimitAreRefused) {
  for (std::size_t index = 0; index <= pageLimits.pages; ++index)
    folder.write(std::to_string(index) + ".plist", "");
  EXPECT_FALSE(readPages(folder.path()));
}

}  // namespace
}  // namespace desktop::settings
