// SPDX-License-Identifier: MIT
//
// The grids with captions, summaries and sizes, as a user meets them, and settings that change
// while the application runs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <thread>

#include "tests/apps/photohost/host_run.h"

namespace photohost {
namespace {

using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

// A thumbnail's caption bar is known by its tag.
std::vector<Json> barsOn(const Json& screen) {
  std::vector<Json> bars;
  for (const Json& view : nodesOfClass(screen, "UIView"))
    if (view.value("tag", 0) == 100) bars.push_back(view);
  return bars;
}

std::vector<std::string> captionsOn(const Json& screen) {
  std::vector<std::string> captions;
  for (const Json& bar : barsOn(screen)) captions.push_back(bar["children"][0].value("text", ""));
  return captions;
}

std::vector<double> alphasOn(const Json& screen) {
  std::vector<double> alphas;
  for (const Json& bar : barsOn(screen)) alphas.push_back(bar["alpha"]);
  return alphas;
}

double cellWidth(const Json& screen) {
  return nodesOfClass(screen, "PUPhotosGridCell")[0]["frame"][2];
}

constexpr char openCity[] = "open album City\nwait 1\n";

class GridTest : public testing::Test {
 protected:
  // A pipe for the application to dump to: it waits there for awaitPipe, and that for it.
  void makePipe(const std::string& name) const {
    ASSERT_EQ(::mkfifo(host.file(name).c_str(), S_IRUSR | S_IWUSR), 0);
  }
  void awaitPipe(const std::string& name) const {
    EXPECT_EQ(std::system(("timeout 60 cat '" + host.file(name) + "' >/dev/null").c_str()), 0);
  }

  Host host;
};

TEST_F(GridTest, ACaptionKeepsItsTextUntilItsItemIsAskedForAgain) {
  host.run(openCity + std::string("dump before.json\n") + setting("thumbnailInfoDisplay 3") +
           "wait 1\ndump same.json\nback\nwait 1\n" + openCity + "dump after.json\n");
  EXPECT_THAT(captionsOn(host.dumped("before")), SizeIs(6));
  EXPECT_EQ(captionsOn(host.dumped("same")), captionsOn(host.dumped("before")));
  EXPECT_THAT(captionsOn(host.dumped("after")), Each(HasSubstr("B")));
  EXPECT_THAT(captionsOn(host.dumped("before")), Not(Each(HasSubstr("B"))));
}

TEST_F(GridTest, WhatTheToolSetsMeanwhileHoldsFromThenOn) {
  makePipe("reached");
  makePipe("go");
  std::thread tool([this] {
    awaitPipe("reached");
    toolOutput("settings --root '" + host.root() + "' set thumbnailInfoDisplay 3");
    awaitPipe("go");
  });
  host.run(openCity + std::string("dump before.json\ndump reached\ndump go\nwait 1\n") +
           "dump same.json\nback\nwait 1\n" + openCity + "dump after.json\n");
  tool.join();
  EXPECT_EQ(captionsOn(host.dumped("same")), captionsOn(host.dumped("before")));
  EXPECT_THAT(captionsOn(host.dumped("before")), Not(Contains(HasSubstr("B"))));
  EXPECT_THAT(captionsOn(host.dumped("after")), Each(HasSubstr("B")));
}

TEST_F(GridTest, ACellMadeWithoutACaptionNeverGetsOne) {
  host.run(setting("thumbnailInfoDisplay 0") + openCity + setting("thumbnailInfoDisplay 1") +
           "rotate\nwait 1\nrotate\nwait 1\ndump used.json\nback\nwait 1\n" + openCity +
           "dump made.json\n");
  EXPECT_THAT(barsOn(host.dumped("used")), IsEmpty());
  EXPECT_THAT(barsOn(host.dumped("made")), SizeIs(6));
}

TEST_F(GridTest, CaptionsTurnedOffGoAtTheNextLayoutAndStayAway) {
  host.run(openCity + setting("thumbnailInfoDisplay 0") + "wait 1\ndump still.json\n" +
           "rotate\nwait 1\ndump off.json\n" + setting("thumbnailInfoDisplay 1") +
           "rotate\nwait 1\ndump on.json\n");
  EXPECT_THAT(alphasOn(host.dumped("still")), Each(1.0));
  EXPECT_THAT(alphasOn(host.dumped("off")), Each(0.0));
  EXPECT_THAT(alphasOn(host.dumped("on")), Each(0.0));
}

TEST_F(GridTest, ALongPressTellsAndATouchEndsIt) {
  host.run(setting("thumbnailQuickInfo 1") + openCity +
           "long-press item 1\nwait 1\nexpect \"File Size: \"\ndump box.json\n"
           "tap 5 200\nwait 1\ndump grid.json\n");
  EXPECT_THAT(nodesOfClass(host.dumped("box"), "LumifactPopUpViewController"), SizeIs(1));
  EXPECT_THAT(nodesOfClass(host.dumped("grid"), "LumifactPopUpViewController"), IsEmpty());
}

TEST_F(GridTest, TheFormOfASummaryChangesAtOnceAndItsGestureDoesNot) {
  host.run(setting("thumbnailQuickInfo 1") + openCity + setting("thumbnailQuickInfo 2") +
           "long-press item 1\nwait 1\ndump alert.json\ntap \"Ok\"\nwait 1\n" +
           setting("thumbnailQuickInfo 0") + "long-press item 1\nwait 1\ndump off.json\n" +
           "tap \"Ok\"\nwait 1\nback\nwait 1\n" + openCity +
           "long-press item 1\nwait 1\ndump none.json\n");
  EXPECT_EQ(host.dumped("alert")["alert"]["title"], "");
  EXPECT_FALSE(host.dumped("off")["alert"].is_null());
  EXPECT_TRUE(host.dumped("none")["alert"].is_null());
}

TEST_F(GridTest, TheButtonMakesThumbnailsLargerAndSmallerAgain) {
  host.run(setting("useGridSizeButton true") + openCity + "dump four.json\ntap \"G\"\nwait 1\n" +
           "dump two.json\ntap \"G\"\nwait 1\ndump again.json\n");
  EXPECT_EQ(cellWidth(host.dumped("four")), 93);
  EXPECT_EQ(cellWidth(host.dumped("two")), 186.5);
  EXPECT_EQ(cellWidth(host.dumped("again")), 93);
}

TEST_F(GridTest, ASelectionTellsWhatItWeighs) {
  host.run(setting("showSelectedSize true") + openCity +
           "select item 1\nwait 1\ndump one.json\nswipe-select 2 4\nwait 1\ndump four.json\n"
           "tap \"Cancel\"\nwait 1\ndump none.json\n");
  EXPECT_THAT(host.dumped("one")["navigation"]["title"].get<std::string>(),
              testing::MatchesRegex("1 (Photo|Video) Selected \\([0-9.]+ [KM]B\\) "));
  EXPECT_THAT(host.dumped("four")["navigation"]["title"].get<std::string>(),
              testing::MatchesRegex("4 (Photos|Items) Selected \\([0-9.]+ [KM]B\\) "));
  EXPECT_EQ(host.dumped("none")["navigation"]["title"], "City");
}

}  // namespace
}  // namespace photohost
