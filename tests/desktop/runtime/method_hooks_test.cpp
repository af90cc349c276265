// SPDX-License-Identifier: MIT
#include "desktop/runtime/method_hooks.h"

#include <gtest/gtest.h>

#include "tests/bridge/victims.h"

namespace desktop::runtime {
namespace {

using victims::ClassMaker;

using Number = int (*)(id, SEL);
constinit IMP saved = nullptr;

int callOnTimesTen(id self, SEL command) {
  return 10 * reinterpret_cast<Number>(saved)(self, command);
}

void hook(Class aClass, const char* selector) {
  saved = nullptr;
  MSHookMessageEx(aClass, sel_registerName(selector), reinterpret_cast<IMP>(&callOnTimesTen),
                  &saved);
}

TEST(MethodHooks, ReplaceAMethodOfTheClass) {
  const Class made = ClassMaker("OwnHost")
                         .method(
                             "number", +[](id, SEL) { return 1; })
                         .build();
  const Class below = ClassMaker("OwnHostBelow", "OwnHost").build();
  const auto used = victims::make(below);
  ASSERT_EQ((send<int, "number">(used)), 1) << "the subclass's table is filled before the hook";
  hook(made, "number");
  EXPECT_EQ((send<int, "number">(victims::make(made))), 10);
  EXPECT_EQ((send<int, "number">(used)), 10);
  EXPECT_EQ(methodHooks().back(), (MethodHook{"OwnHost", "number", HookOutcome::replacedOwn}));
}

TEST(MethodHooks, LeaveTheSuperclassAndItsOtherSubclassesAlone) {
  const Class base = ClassMaker("InheritedBase")
                         .method(
                             "number", +[](id, SEL) { return 2; })
                         .build();
  const Class hooked = ClassMaker("InheritedHost", "InheritedBase").build();
  const Class sibling = ClassMaker("InheritedSibling", "InheritedBase").build();
  hook(hooked, "number");
  EXPECT_EQ((send<int, "number">(victims::make(hooked))), 20);
  EXPECT_EQ((send<int, "number">(victims::make(base))), 2);
  EXPECT_EQ((send<int, "number">(victims::make(sibling))), 2);
  EXPECT_EQ(methodHooks().back(),
            (MethodHook{"InheritedHost", "number", HookOutcome::extendedInherited}));
}

TEST(MethodHooks, ReplaceClassMethodsThroughTheMetaclass) {
  const Class base = ClassMaker("ClassMethodBase")
                         .classMethod(
                             "number", +[](id, SEL) { return 3; })
                         .build();
  const Class hooked = ClassMaker("ClassMethodHost", "ClassMethodBase").build();
  hook(object_getClass(rawObject(hooked)), "number");
  EXPECT_EQ((send<int, "number">(hooked)), 30);
  EXPECT_EQ((send<int, "number">(base)), 3);
}

TEST(MethodHooks, StackOnEachOther) {
  const Class made = ClassMaker("TwiceHost")
                         .method(
                             "number", +[](id, SEL) { return 4; })
                         .build();
  hook(made, "number");
  static IMP first = nullptr;
  first = saved;
  MSHookMessageEx(made, sel_registerName("number"),
                  reinterpret_cast<IMP>(+[](id self, SEL command) {
                    return 1 + reinterpret_cast<Number>(first)(self, command);
                  }),
                  nullptr);
  EXPECT_EQ((send<int, "number">(victims::make(made))), 5);
}

TEST(MethodHooks, OfAMissingClassOrMethodDoNothing) {
  const Class made = ClassMaker("EmptyHost").build();
  hook(made, "numberThatNobodyHas");
  EXPECT_EQ(saved, nullptr);
  EXPECT_FALSE(class_respondsToSelector(made, sel_registerName("numberThatNobodyHas")));
  EXPECT_EQ(methodHooks().back(),
            (MethodHook{"EmptyHost", "numberThatNobodyHas", HookOutcome::missingMethod}));
  hook(nullptr, "number");
  EXPECT_EQ(saved, nullptr);
  EXPECT_EQ(methodHooks().back(), (MethodHook{"", "number", HookOutcome::missingClass}));
}

}  // namespace
}  // namespace desktop::runtime
