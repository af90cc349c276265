// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <filesystem>

#include "bridge/class_builder.h"
#include "desktop/script/script_runner.h"
#include "desktop/script/system_commands.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controls/ui_slider.h"
#include "foundation/property_lists/property_list.h"
#include "tests/desktop/uikit/application_test.h"
#include "tests/desktop/uikit/touch_probes.h"
#include "tests/support/temporary_folder.h"

namespace desktop::script {
namespace {

class CommandsTest : public uikit::ApplicationTest {
 protected:
  CommandsTest() : root(folder.path()) {
    addTouchCommands(runner);
    addScreenCommands(runner);
    addSystemCommands(runner, root);
  }

  void expectDone(std::string_view line) {
    const auto failed = runner.runLine(line);
    EXPECT_FALSE(failed) << line << ": " << (failed ? failed->reason : "");
  }

  support::TemporaryFolder folder;
  foundation::DeviceRoot root;
  ScriptRunner runner;
};

TEST_F(CommandsTest, APreferenceIsOneKeyOfItsDomainsFile) {
  expectDone("preference com.example.app size 14");
  expectDone("preference com.example.app zoom 12.5");
  expectDone("preference com.example.app isOn true");
  expectDone("preference com.example.app name \"14\"");
  const auto list = foundation::readPropertyList(
      root.onDisk("/var/mobile/Library/Preferences/com.example.app.plist"));
  ASSERT_TRUE(list);
  EXPECT_EQ(list->root, model::Value(model::Dictionary{
                            {"size", 14}, {"zoom", 12.5}, {"isOn", true}, {"name", "14"}}));
}

TEST_F(CommandsTest, APreferenceStaysInItsFolder) {
  EXPECT_TRUE(runner.runLine("preference ../escape key 1"));
  EXPECT_TRUE(runner.runLine("preference \"\" key 1"));
}

TEST_F(CommandsTest, WaitingMovesTimeOn) {
  const double before = uikit::scheduler().now();
  expectDone("wait 2.5");
  EXPECT_DOUBLE_EQ(uikit::scheduler().now(), before + 2.5);
  for (const char* line : {"wait", "wait -1", "wait 1e9", "wait soon"})
    EXPECT_TRUE(runner.runLine(line)) << line;
}

TEST_F(CommandsTest, AScreenshotHasTheScalesPixels) {
  const std::string file = folder.file("screen.png");
  expectDone("screenshot " + file);
  EXPECT_EQ(QImage(QString::fromStdString(file)).size(), QSize(750, 1334));
  EXPECT_TRUE(runner.runLine("screenshot /does/not/exist.png"));
}

TEST_F(CommandsTest, WhatCannotBeWrittenIsToldAndLeavesNothing) {
  for (const std::string command : {"dump", "screenshot"}) {
    EXPECT_EQ(runner.runLine(command + " /does/not/exist")->reason,
              "/does/not/exist: No such file or directory");
    EXPECT_EQ(runner.runLine(command + " /dev/full")->reason, "/dev/full: No space left on device");
    EXPECT_EQ(runner.runLine(command + " " + folder.path())->reason,
              folder.path() + ": Is a directory");
    expectDone(command + " " + folder.file(command));
  }
  int files = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.path()))
    ++files;
  EXPECT_EQ(files, 2);
}

TEST_F(CommandsTest, ExpectingLooksAtTheScreen) {
  const auto label = bridge::makeView<UILabel>({{0, 0}, {100, 20}});
  label->setText(NSString::make("hello"));
  window().addSubview(label);
  expectDone("expect \"hello\"");
  expectDone("expect-not \"goodbye\"");
  EXPECT_EQ(runner.runLine("expect \"goodbye\"")->reason, "\"goodbye\" is not on screen");
  EXPECT_EQ(runner.runLine("expect-not \"hello\"")->reason, "\"hello\" is on screen");
}

TEST_F(CommandsTest, AWrongLineIsAnError) {
  for (const char* line : {"tap", "tap 1", "tap x y", "tap \"nowhere\"", "touch-down",
                           "menu \"Copy\"", "type paste", "scroll", "slide", "slide \"Speed\" 2",
                           "slide \"Speed\" 0.5", "dump a b", "expect", "notify", "preference a b"})
    EXPECT_TRUE(runner.runLine(line)) << line;
}

TEST_F(CommandsTest, RotatingSwapsTheSides) {
  expectDone("rotate");
  EXPECT_EQ(uikit::screen().size, (CGSize{667, 375}));
}

TEST_F(CommandsTest, AFingerLeavesFromWhereverItWasMoved) {
  const auto view = uikit::ProbeView::make({{0, 0}, {375, 667}});
  window().addSubview(view);
  const auto& probe = uikit::ProbeView::of(view.get());
  expectDone("touch-down 10 20");
  expectDone("touch-up");
  runner.finger.down({30, 40});
  runner.finger.move({50, 60});
  expectDone("touch-up");
  EXPECT_EQ(probe.last, (CGPoint{50, 60}));
  EXPECT_THAT(probe.touches, testing::ElementsAre("began", "ended", "began", "moved", "ended"));
}

TEST_F(CommandsTest, SlidesTheKnobOfTheSliderOfThatName) {
  const auto slider = uikit::UISlider::make();
  slider->setFrame({{20, 100}, {200, 31}});
  auto& state = uikit::UISlider::of(slider.get());
  state.setAccessibilityLabel(NSString::make("Speed"));
  window().addSubview(slider);
  expectDone("slide \"Speed\" 0.75");
  EXPECT_FLOAT_EQ(state.value(), 0.75F);
  expectDone("slide \"Speed\" 0");
  EXPECT_FLOAT_EQ(state.value(), 0);
}

}  // namespace
}  // namespace desktop::script
