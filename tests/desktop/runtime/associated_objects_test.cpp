// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>
#include <thread>

#include "desktop/platform.h"
#include "tests/bridge/victims.h"

namespace desktop::runtime {
namespace {

using victims::deaths;

constexpr std::uintptr_t assign = 0;
constexpr std::uintptr_t retainNonatomic = 1;
constexpr std::uintptr_t copyNonatomic = 3;
constexpr std::uintptr_t retain = 01401;
constexpr std::uintptr_t copy = 01403;

const char key = 0;

Owned<Object> makeMortal() {
  return victims::make(victims::mortalClass());
}

Object string(const char* text) {
  return send<Object, "stringWithUTF8String:">(classNamed<"NSString">(), text);
}

TEST(AssociatedObjects, GoWithOwnersOfAnyClass) {
  const char* const classes[] = {"NSObject", "NSMutableArray",      "NSMutableString",
                                 "NSCache",  "NSMutableDictionary", "NSDateFormatter",
                                 "Mortal"};
  ASSERT_TRUE(victims::mortalClass());
  for (const char* name : classes) {
    deaths = 0;
    {
      const AutoreleasePool pool;
      const auto owner = victims::make(objc_getClass(name));
      ASSERT_TRUE(owner) << name;
      objc_setAssociatedObject(owner.get().get(), &key, makeMortal().get().get(), retain);
    }
    EXPECT_GE(deaths, 1) << name;
  }
}

TEST(AssociatedObjects, GoWithClassesMadeAtRunTime) {
  static const Class made = victims::ClassMaker("OwnerMadeAtRunTime", "NSMutableArray").build();
  ASSERT_TRUE(made && victims::mortalClass());
  const Class below = victims::ClassMaker("OwnerBelowMortal", "Mortal").build();
  deaths = 0;
  {
    const auto owner = victims::make(below);
    objc_setAssociatedObject(owner.get().get(), &key, makeMortal().get().get(), retainNonatomic);
  }
  EXPECT_EQ(deaths, 2);
}

TEST(AssociatedObjects, FollowTheirPolicy) {
  const AutoreleasePool pool;
  const auto owner = victims::make(objc_getClass("NSObject"));
  const Object text =
      send<Object, "stringWithString:">(classNamed<"NSMutableString">(), string("changeable"));
  for (const std::uintptr_t policy : {copyNonatomic, copy}) {
    objc_setAssociatedObject(owner.get().get(), &key, text.get(), policy);
    const Object kept(objc_getAssociatedObject(owner.get().get(), &key));
    EXPECT_NE(kept, text) << policy;
    EXPECT_TRUE((send<bool, "isEqual:">(kept, text))) << policy;
  }
  objc_setAssociatedObject(owner.get().get(), &key, text.get(), assign);
  EXPECT_EQ(Object(objc_getAssociatedObject(owner.get().get(), &key)), text);
}

TEST(AssociatedObjects, OfAnAtomicPolicyOutliveTheirOwnerInTheGettersPool) {
  deaths = 0;
  {
    const AutoreleasePool pool;
    {
      const auto owner = victims::make(objc_getClass("NSObject"));
      objc_setAssociatedObject(owner.get().get(), &key, makeMortal().get().get(), retain);
      objc_getAssociatedObject(owner.get().get(), &key);
    }
    EXPECT_EQ(deaths, 0);
  }
  EXPECT_EQ(deaths, 1);
}

TEST(AssociatedObjects, MayOwnOthersThatOwnOthers) {
  deaths = 0;
  {
    Owned<Object> first = makeMortal();
    Owned<Object> link = first;
    for (int depth = 0; depth < 100; ++depth) {
      Owned<Object> next = makeMortal();
      objc_setAssociatedObject(link.get().get(), &key, next.get().get(), retainNonatomic);
      link = next;
    }
  }
  EXPECT_EQ(deaths, 101);
}

TEST(AssociatedObjects, AreSafeToUseFromSeveralThreads) {
  std::array<std::thread, 4> threads;
  for (std::thread& thread : threads) {
    thread = std::thread([] {
      for (int round = 0; round < 5000; ++round) {
        const AutoreleasePool pool;
        const auto owner = victims::make(objc_getClass("NSObject"));
        const auto value = victims::make(objc_getClass("NSObject"));
        objc_setAssociatedObject(owner.get().get(), &key, value.get().get(), retain);
        ASSERT_EQ(objc_getAssociatedObject(owner.get().get(), &key), value.get().get());
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
}  // namespace desktop::runtime
