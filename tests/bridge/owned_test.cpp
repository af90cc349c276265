// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <utility>

#include "tests/bridge/victims.h"

namespace bridge {
namespace {

using victims::deaths;

class OwnedTest : public testing::Test {
 protected:
  OwnedTest() { deaths = 0; }

  static Owned<Object> makeMortal() { return victims::make(victims::mortalClass()); }
};

TEST_F(OwnedTest, ReleasesWhatItAdopted) {
  { const Owned<Object> object = makeMortal(); }
  EXPECT_EQ(deaths, 1);
}

TEST_F(OwnedTest, SharesWhatItRetained) {
  Owned<Object> first = makeMortal();
  {
    const auto second = Owned<Object>::retain(first.get());
    first.reset();
    EXPECT_EQ(deaths, 0);
  }
  EXPECT_EQ(deaths, 1);
}

TEST_F(OwnedTest, SurvivesAssignmentFromItself) {
  Owned<Object> object = makeMortal();
  Owned<Object>& alias = object;
  object = alias;
  EXPECT_EQ(deaths, 0);
  object = std::move(alias);
  EXPECT_EQ(deaths, 0);
  EXPECT_TRUE(object);
}

TEST_F(OwnedTest, ReleasesTheOldOnAssignmentAfterRetainingTheNew) {
  Owned<Object> object = makeMortal();
  const Owned<Object> other = makeMortal();
  object = other;
  EXPECT_EQ(deaths, 1);
  EXPECT_EQ(object.get(), other.get());
}

TEST_F(OwnedTest, TakesNilEverywhere) {
  Owned<Object> nothing;
  Owned<Object> copy = nothing;
  copy = Owned<Object>::retain(Object());
  copy = std::move(nothing);
  copy.reset();
  EXPECT_FALSE(copy);
  EXPECT_FALSE(copy.autorelease());
}

TEST_F(OwnedTest, HandsItsReferenceToTheCallerOrToThePool) {
  Owned<Object> object = makeMortal();
  Object detached = object.detach();
  EXPECT_FALSE(object);
  {
    const AutoreleasePool pool;
    EXPECT_EQ(Owned<Object>::adopt(detached).autorelease(), detached);
    EXPECT_EQ(deaths, 0);
  }
  EXPECT_EQ(deaths, 1);
}

TEST_F(OwnedTest, PoolsNest) {
  const AutoreleasePool outer;
  makeMortal().autorelease();
  {
    const AutoreleasePool inner;
    makeMortal().autorelease();
  }
  EXPECT_EQ(deaths, 1);
}

}  // namespace
}  // namespace bridge
