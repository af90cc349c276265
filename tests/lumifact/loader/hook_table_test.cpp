// SPDX-License-Identifier: MIT
//
// The rows at work: messages sent to the host's objects after the extension is loaded.
#include "lumifact/loader/hook_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bridge/foundation.h"
#include "tests/bridge/victims.h"
#include "tests/lumifact/loader/loaded_extension.h"

namespace lumifact::host {
namespace {

using bridge::HookKind;
using bridge::HookRow;

std::string nameOf(const HookRow& row) {
  return std::string(row.className) + " " + row.selector;
}

class HookTableTest : public testing::Test {
 protected:
  HookTableTest() { loadedExtension(); }

  static bool isHere(const HookRow& row) { return objc_getClass(row.className) != nullptr; }

  const bridge::AutoreleasePool pool;
};

TEST_F(HookTableTest, ReplacedMethodsReachTheHostOnceWithReceiverAndArguments) {
  for (const HookRow& row : rowsOf(HookKind::replaced)) {
    if (!isHere(row)) continue;
    const std::string_view encoding = hostMethodOf(row).encoding;
    const auto receiver = makeReceiver(row);
    EXPECT_EQ(sendSample(receiver, row.selector, encoding), hostAnswer(receiver, encoding))
        << nameOf(row);
    EXPECT_THAT(hostCalls(), testing::Contains(
                                 HostCall{receiver->get(), row.selector, sampleArguments(encoding)})
                                 .Times(1))
        << nameOf(row);
  }
}

TEST_F(HookTableTest, AMethodThatTheHostHasAlreadyIsNotReplacedByAnAddedOne) {
  const auto cell = victims::make(objc_getClass("PUPhotosGridCell"));
  EXPECT_EQ((bridge::send<bridge::Object, "sizeLabel">(cell)), cell.get());
}

TEST_F(HookTableTest, AddedMethodsHaveTheStatedEncodings) {
  for (const HookRow& row : rowsOf(HookKind::added)) {
    const Method method =
        class_getInstanceMethod(objc_getClass(row.className), sel_registerName(row.selector));
    ASSERT_NE(method, nullptr) << nameOf(row);
    EXPECT_STREQ(method_getTypeEncoding(method), row.encoding) << nameOf(row);
  }
}

TEST_F(HookTableTest, HooksHaveTheSignaturesOfTheMethodsThatTheyReplace) {
  for (const HookRow& row : rowsOf(HookKind::replaced))
    EXPECT_STREQ(row.encoding, hostMethodOf(row).encoding) << nameOf(row);
}

TEST_F(HookTableTest, WhatTheHostRaisesReachesItsCaller) {
  const auto controller = victims::make(objc_getClass("PUOneUpViewController"));
  bool raised = false;
  try {
    bridge::send<void, "_setTilingView:">(controller, bridge::Object());
  } catch (...) {
    raised = true;
  }
  EXPECT_TRUE(raised);
}

}  // namespace
}  // namespace lumifact::host
