// SPDX-License-Identifier: MIT
#include "bridge/hook.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "bridge/guard.h"
#include "tests/bridge/victims.h"

namespace bridge {
namespace {

using victims::ClassMaker;

std::vector<std::string> steps;

// A host: a cell with methods of its own, below a base whose method it inherits, with a sibling.
Class hostCell() {
  static const Class made = [] {
    ClassMaker("HostBase")
        .method(
            "title", +[](id, SEL) { return 1; })
        .method(
            "level", +[](id, SEL) { return 3; })
        .method("raising", &victims::raise)
        .build();
    ClassMaker("HostSibling", "HostBase").build();
    return ClassMaker("HostCell", "HostBase")
        .method(
            "setSize:",
            +[](id, SEL, double size) { steps.push_back("host " + std::to_string(size)); })
        .method(
            "existing", +[](id, SEL) { return 7; })
        .build();
  }();
  return made;
}

id lastSelf = nullptr;
void HostCell_setSize(id self, SEL command, double size) {
  lastSelf = self;
  stock<&HostCell_setSize>(self, command, size);
  guarded([&] { steps.emplace_back("own"); });
}

int HostCell_title(id self, SEL command) {
  return 10 * stock<&HostCell_title>(self, command);
}

int HostCell_level(id self, SEL command) {
  return 100 * stock<&HostCell_level>(self, command);
}

void HostCell_raising(id self, SEL command) {
  guarded([] { throw std::runtime_error("own failure"); });
  stock<&HostCell_raising>(self, command);
}

int HostCell_existing(id, SEL) {
  return 0;
}
id HostCell_itself(id self, SEL) {
  return self;
}

void Nobody_nothing(id self, SEL command) {
  stock<&Nobody_nothing>(self, command);
}

void HostCell_noSuchMethod(id self, SEL command) {
  stock<&HostCell_noSuchMethod>(self, command);
}

// A class that raises when it is asked for a method that it lacks.
Class moodyHost() {
  static const Class made = ClassMaker("MoodyHost")
                                .classMethod(
                                    "resolveInstanceMethod:",
                                    +[](id self, SEL command, SEL) {
                                      victims::raise(self, command);
                                      return BOOL{};
                                    })
                                .method(
                                    "calm", +[](id, SEL) { return 1; })
                                .build();
  return made;
}

void MoodyHost_missing(id self, SEL command) {
  stock<&MoodyHost_missing>(self, command);
}

int MoodyHost_calm(id self, SEL command) {
  return 10 * stock<&MoodyHost_calm>(self, command);
}

int MoodyHost_new(id, SEL) {
  return 5;
}

constinit const HookRow moodyTable[] = {
    replaced<"MoodyHost", "missing", &MoodyHost_missing>,
    replaced<"MoodyHost", "calm", &MoodyHost_calm>,
    added<"MoodyHost", "new", "i@:", &MoodyHost_new>,
};

constinit const HookRow table[] = {
    replaced<"HostCell", "setSize:", &HostCell_setSize>,
    replaced<"HostCell", "title", &HostCell_title>,
    replaced<"NobodyHasThisClass", "nothing", &Nobody_nothing>,
    added<"NobodyHasThisClass", "itself", "@@:", &HostCell_itself>,
    replaced<"HostCell", "noSuchMethod", &HostCell_noSuchMethod>,
    replaced<"HostCell", "raising", &HostCell_raising>,
    added<"HostCell", "existing", "i@:", &HostCell_existing>,
    added<"HostCell", "itself", "@@:", &HostCell_itself>,
    replaced<"HostCell", "level", &HostCell_level>,
};

class HookTest : public testing::Test {
 protected:
  HookTest() : cell(victims::make(hookedCell())) { steps.clear(); }

  static Class hookedCell() {
    static const bool applied = [] {
      hostCell();
      applyHooks(table);
      return true;
    }();
    return applied ? hostCell() : nullptr;
  }

  Owned<Object> cell;
};

TEST_F(HookTest, ReplacementSeesReceiverAndArgumentsAndCallsOn) {
  send<void, "setSize:">(cell, 2.5);
  EXPECT_EQ(Object(lastSelf), cell.get());
  EXPECT_EQ(steps, (std::vector<std::string>{"host 2.500000", "own"}));
}

TEST_F(HookTest, EachHookKeepsWhatItReplaced) {
  EXPECT_EQ((send<int, "title">(cell)), 10);
  EXPECT_EQ((send<int, "level">(cell)), 300);
}

TEST_F(HookTest, HookingAnInheritedMethodLeavesSiblingsAlone) {
  EXPECT_EQ((send<int, "title">(cell)), 10);
  EXPECT_EQ((send<int, "title">(victims::make(objc_getClass("HostSibling")))), 1);
  EXPECT_EQ((send<int, "title">(victims::make(objc_getClass("HostBase")))), 1);
}

TEST_F(HookTest, RowsAfterAMissingClassOrMethodAreApplied) {
  EXPECT_FALSE(respondsTo<"noSuchMethod">(cell));
  EXPECT_EQ((send<Object, "itself">(cell)), cell.get());
}

TEST(Hook, ARowThatTheHostRaisesAtStopsNoOther) {
  const AutoreleasePool pool;
  moodyHost();
  bool raises = false;
  try {
    class_getInstanceMethod(moodyHost(), sel_registerName("missing"));
  } catch (...) {
    raises = true;
  }
  ASSERT_TRUE(raises);
  applyHooks(moodyTable);
  const auto host = victims::make(moodyHost());
  EXPECT_EQ((send<int, "calm">(host)), 10);
  EXPECT_EQ((send<int, "new">(host)), 5);
}

TEST_F(HookTest, AddingLeavesAMethodOfTheClassInPlace) {
  EXPECT_EQ((send<int, "existing">(cell)), 7);
}

TEST_F(HookTest, WhatTheHostRaisesPassesThroughAndOurOwnDoesNot) {
  const AutoreleasePool pool;
  bool raised = false;
  try {
    send<void, "raising">(cell);
  } catch (const std::runtime_error&) {
    FAIL() << "an exception of the hook's own work reached the host";
  } catch (...) {
    raised = true;
  }
  EXPECT_TRUE(raised);
}

TEST_F(HookTest, RowsSayWhatTheyDo) {
  EXPECT_STREQ(table[0].className, "HostCell");
  EXPECT_STREQ(table[0].selector, "setSize:");
  EXPECT_STREQ(table[0].encoding, "v@:d");
  EXPECT_EQ(table[0].kind, HookKind::replaced);
  EXPECT_EQ(table[7].kind, HookKind::added);
}

TEST(Stock, AnswersZeroWhereThereWasNothingToSave) {
  const Stock<double(id, SEL)> empty;
  EXPECT_EQ(empty(nullptr, nullptr), 0.0);
}

TEST(Guard, AnswersTheZeroOfTheResult) {
  const AutoreleasePool pool;
  EXPECT_EQ(guarded([]() -> int { throw std::runtime_error("own"); }), 0);
  EXPECT_EQ(guarded([]() -> id {
              victims::raise(nullptr, nullptr);
              return nullptr;
            }),
            nullptr);
  EXPECT_EQ(guarded([] { return 3; }), 3);
}

TEST(Guard, OfAMethodLetsTheHostsExceptionsThrough) {
  const AutoreleasePool pool;
  EXPECT_ANY_THROW(guardedMethod([] { victims::raise(nullptr, nullptr); }));
  EXPECT_NO_THROW(guardedMethod([] { throw std::runtime_error("own"); }));
}

}  // namespace
}  // namespace bridge
