// SPDX-License-Identifier: MIT
#include "bridge/runtime/associated_property.h"

#include <gtest/gtest.h>

#include "tests/bridge/victims.h"

namespace bridge {
namespace {

constinit AssociatedProperty<Object> label;
constinit AssociatedProperty<Object> bar;

TEST(AssociatedProperty, KeepsOneValueForEachKeyAndOwner) {
  const auto owner = victims::make(classNamed<"NSObject">());
  const auto other = victims::make(classNamed<"NSObject">());
  const auto first = victims::make(classNamed<"NSObject">());
  const auto second = victims::make(classNamed<"NSObject">());
  label.set(owner, first);
  bar.set(owner, second);
  EXPECT_EQ(label.get(owner), first.get());
  EXPECT_EQ(bar.get(owner), second.get());
  EXPECT_FALSE(label.get(other));
}

TEST(AssociatedProperty, HoldsItsValueUntilTheOwnerGoes) {
  victims::deaths = 0;
  {
    const auto owner = victims::make(classNamed<"NSObject">());
    label.set(owner, victims::make(victims::mortalClass()));
    EXPECT_EQ(victims::deaths, 0);
  }
  EXPECT_EQ(victims::deaths, 1);
}

TEST(AssociatedProperty, ReleasesAValueThatIsReplacedOrTakenAway) {
  victims::deaths = 0;
  const auto owner = victims::make(classNamed<"NSObject">());
  label.set(owner, victims::make(victims::mortalClass()));
  label.set(owner, victims::make(victims::mortalClass()));
  EXPECT_EQ(victims::deaths, 1);
  label.set(owner, Object());
  EXPECT_EQ(victims::deaths, 2);
  EXPECT_FALSE(label.get(owner));
}

TEST(AssociatedProperty, TakesNilForItsOwner) {
  label.set(Object(), victims::make(classNamed<"NSObject">()));
  EXPECT_FALSE(label.get(Object()));
}

}  // namespace
}  // namespace bridge
