// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/bridge/victims.h"

extern "C" SEL sel_registerTypedName(const char* name, const char* encoding);

namespace bridge {
namespace {

using victims::ClassMaker;
using victims::Rect;

Class echoClass() {
  static const Class made =
      ClassMaker("Echo")
          .method(
              "twice:", +[](id, SEL, int number) { return 2 * number; })
          .method(
              "half:", +[](id, SEL, double number) { return number / 2; })
          .method(
              "moved:by:",
              +[](id, SEL, Rect frame, float distance) {
                frame.x += static_cast<double>(distance);
                return frame;
              })
          .method(
              "isEven:", +[](id, SEL, long number) -> BOOL { return number % 2 == 0; })
          .method(
              "negated:", +[](id, SEL, BOOL flag) -> BOOL { return !flag; })
          .method(
              "itself", +[](id self, SEL) { return self; })
          .classMethod(
              "classNumber", +[](id, SEL) { return 7L; })
          .build();
  return made;
}

TEST(Send, PassesArgumentsAndResultsOfEveryKind) {
  const auto echo = victims::make(echoClass());
  EXPECT_EQ((send<int, "twice:">(echo, 21)), 42);
  EXPECT_EQ((send<double, "half:">(echo, 5.0)), 2.5);
  EXPECT_EQ((send<Rect, "moved:by:">(echo, Rect{1, 2, 3, 4}, 10.0F)), (Rect{11, 2, 3, 4}));
  EXPECT_TRUE((send<bool, "isEven:">(echo, 4L)));
  EXPECT_FALSE((send<bool, "negated:">(echo, true)));
  EXPECT_EQ((send<Object, "itself">(echo)), echo.get());
  EXPECT_EQ((send<long, "classNumber">(echoClass())), 7);
}

TEST(Send, AnswersZeroOfEveryTypeForNil) {
  const Object nothing;
  EXPECT_EQ((send<int, "twice:">(nothing, 21)), 0);
  EXPECT_EQ((send<double, "half:">(nothing, 5.0)), 0.0);
  EXPECT_EQ((send<float, "floatValue">(nothing)), 0.0F);
  EXPECT_EQ((send<Rect, "moved:by:">(nothing, Rect{1, 2, 3, 4}, 10.0F)), Rect());
  EXPECT_FALSE((send<bool, "isEven:">(nothing, 4L)));
  EXPECT_FALSE((send<Object, "itself">(nothing)));
  EXPECT_EQ((send<id, "itself">(static_cast<Class>(nullptr))), nullptr);
  send<void, "neverRegisteredAnywhere">(nothing);
}

TEST(Send, ReachesTheSuperclassFromAnOverride) {
  static const Class parent = ClassMaker("SuperParent")
                                  .method(
                                      "rank", +[](id, SEL) { return 1; })
                                  .build();
  static const Class child =
      ClassMaker("SuperChild", "SuperParent")
          .method(
              "rank", +[](id self, SEL) { return 10 + superSend<int, "rank">(self, parent); })
          .build();
  EXPECT_EQ((send<int, "rank">(victims::make(child))), 11);
  EXPECT_EQ((superSend<int, "rank">(Object(), parent)), 0);
}

TEST(Send, LetsWhatAMethodRaisesThrough) {
  static const Class raiser = ClassMaker("Raiser").method("raise", &victims::raise).build();
  const AutoreleasePool pool;
  const auto object = victims::make(raiser);
  EXPECT_ANY_THROW((send<void, "raise">(object)));
}

TEST(Send, LeavesNothingBehindInAMillionMessages) {
  const auto echo = victims::make(echoClass());
  const auto retainCount = send<unsigned long, "retainCount">(echo);
  long sum = 0;
  for (int round = 0; round < 1'000'000; ++round) sum += send<int, "twice:">(echo, round & 1);
  EXPECT_EQ(sum, 1'000'000);
  EXPECT_EQ((send<unsigned long, "retainCount">(echo)), retainCount);
}

TEST(Selector, IsComparedByNameNotByPointer) {
  const Class echo = echoClass();
  const SEL registered = selector<"twice:">();
  const SEL typed = sel_registerTypedName("twice:", "i@:i");
  ASSERT_NE(typed, registered) << "this runtime keeps one selector for each type encoding";
  EXPECT_TRUE(sameSelector(typed, registered));
  EXPECT_TRUE(class_respondsToSelector(echo, typed));
  EXPECT_FALSE(sameSelector(registered, selector<"half:">()));
  EXPECT_FALSE(sameSelector(registered, nullptr));
  EXPECT_TRUE(sameSelector(nullptr, nullptr));
}

TEST(ClassLookup, FindsAClassThatIsRegisteredLater) {
  EXPECT_EQ(classNamed<"LateComer">(), nullptr);
  const Class late = ClassMaker("LateComer").build();
  EXPECT_EQ(classNamed<"LateComer">(), late);
}

TEST(ClassLookup, TestsKindsAndCasts) {
  struct Echo : Object {
    using Object::Object;
    static Class classObject() { return echoClass(); }
  };
  struct Absent : Object {
    using Object::Object;
    static Class classObject() { return classNamed<"NoSuchClass">(); }
  };
  const auto echo = victims::make(echoClass());
  const auto other = victims::make(classNamed<"NSObject">());
  EXPECT_TRUE(as<Echo>(echo));
  EXPECT_FALSE(as<Echo>(other));
  EXPECT_FALSE(as<Echo>(Object()));
  EXPECT_FALSE(as<Absent>(echo));
  EXPECT_TRUE(respondsTo<"twice:">(echo));
  EXPECT_FALSE(respondsTo<"twice:">(other));
}

}  // namespace
}  // namespace bridge
