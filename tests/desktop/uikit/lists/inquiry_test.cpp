// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/inquiry.h"

#include <gtest/gtest.h>

namespace desktop::uikit {
namespace {

TEST(Inquiry, AsksOnceUntilWhatWasLearntIsOutdated) {
  Inquiry inquiry;
  int asked = 0;
  const auto ask = [&] { ++asked; };
  EXPECT_TRUE(inquiry.renew(ask));
  EXPECT_FALSE(inquiry.renew(ask));
  EXPECT_EQ(asked, 1);
  inquiry.outdate();
  EXPECT_TRUE(inquiry.renew(ask));
  EXPECT_EQ(asked, 2);
}

TEST(Inquiry, WhoAsksMeanwhileHearsOfTheOldState) {
  Inquiry inquiry;
  int asked = 0;
  inquiry.renew([&] {
    ++asked;
    EXPECT_FALSE(inquiry.renew([&] { ++asked; }));
  });
  EXPECT_EQ(asked, 1);
}

TEST(Inquiry, AChangeMeanwhileCountsFromTheNextTimeOn) {
  Inquiry inquiry;
  inquiry.renew([&] {
    inquiry.outdate();
    EXPECT_FALSE(inquiry.renew([] {}));
  });
  EXPECT_TRUE(inquiry.renew([] {}));
  EXPECT_FALSE(inquiry.renew([] {}));
}

TEST(Inquiry, APassHoldsUntilAChange) {
  Inquiry inquiry;
  inquiry.renew([] {});
  const Inquiry::Pass pass(inquiry);
  EXPECT_TRUE(pass.holds());
  inquiry.outdate();
  EXPECT_FALSE(pass.holds());
  inquiry.renew([] {});
  EXPECT_FALSE(pass.holds());
  EXPECT_TRUE(Inquiry::Pass(inquiry).holds());
}

}  // namespace
}  // namespace desktop::uikit
