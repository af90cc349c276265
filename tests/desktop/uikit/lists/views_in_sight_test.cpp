// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/views_in_sight.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

// Numbers shown by texts, and what happened to them in the order of happening.
class ViewsInSightTest : public testing::Test {
 protected:
  void follow(const std::map<int, std::string>& wanted) {
    events.clear();
    views.follow(
        wanted, Inquiry::Pass(inquiry),
        [this](int key, const std::string& view) { happens("leaves", key, view); },
        [this](const std::string& view, const std::string& place) {
          events.push_back(view + " to " + place);
        },
        [this](int key, const std::string& place) {
          views.show(key, "view" + std::to_string(key));
          happens("comes", key, place);
        });
  }

  void happens(const std::string& what, int key, const std::string& with) {
    events.push_back(std::to_string(key) + ' ' + what + ' ' + with);
    if (key == changesAt) inquiry.outdate();
  }

  Inquiry inquiry;
  ViewsInSight<int, std::string> views;
  std::vector<std::string> events;
  int changesAt = 0;
};

TEST_F(ViewsInSightTest, LeavingComesBeforeStayingAndComing) {
  follow({{1, "a"}, {2, "b"}, {3, "c"}});
  EXPECT_THAT(events, ElementsAre("1 comes a", "2 comes b", "3 comes c"));
  follow({{2, "d"}, {4, "e"}});
  EXPECT_THAT(events, ElementsAre("1 leaves view1", "3 leaves view3", "view2 to d", "4 comes e"));
  EXPECT_THAT(views.all(), ElementsAre(Pair(2, "view2"), Pair(4, "view4")));
}

TEST_F(ViewsInSightTest, AChangeWhileOneComesEndsThePass) {
  changesAt = 2;
  follow({{1, "a"}, {2, "b"}, {3, "c"}});
  EXPECT_THAT(events, ElementsAre("1 comes a", "2 comes b"));
}

TEST_F(ViewsInSightTest, AChangeWhileOneLeavesLetsAllLeaveAndNoneCome) {
  follow({{1, "a"}, {2, "b"}});
  changesAt = 1;
  follow({{3, "c"}});
  EXPECT_THAT(events, ElementsAre("1 leaves view1", "2 leaves view2"));
  EXPECT_THAT(views.all(), IsEmpty());
}

TEST_F(ViewsInSightTest, AViewShowsOneThingAtATime) {
  views.show(1, "view");
  views.show(2, "view");
  EXPECT_THAT(views.all(), ElementsAre(Pair(2, "view")));
  EXPECT_EQ(views.keyOf("view"), 2);
  EXPECT_EQ(views.find(2), "view");
}

TEST_F(ViewsInSightTest, WhatIsOutOfSightHasNeitherViewNorKey) {
  views.show(1, "view");
  EXPECT_EQ(views.find(2), "");
  EXPECT_EQ(views.keyOf("other"), std::nullopt);
  EXPECT_THAT(views.takeAll(), ElementsAre(Pair(1, "view")));
  EXPECT_EQ(views.keyOf("view"), std::nullopt);
}

}  // namespace
}  // namespace desktop::uikit
