// SPDX-License-Identifier: MIT
//
// The photo application's screens on a small library made by the test; nothing outlives a test.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "bridge/runtime/autorelease_pool.h"
#include "desktop/library/photo_library.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "tests/support/library_folder.h"

namespace desktop::photos_ui {

inline constexpr double aDay = 86'400;  // seconds

class LibraryScreenTest : public testing::Test {
 protected:
  LibraryScreenTest();
  ~LibraryScreenTest() override;

  // Opens the folder's library and shows the root.
  void open();
  // Shows what the folder is now.
  void deliver();
  // Lets animations and whatever waits run.
  static void settle(double seconds = 1);
  static void tap(CGPoint point);
  // The middle of an item of the grid on show.
  static CGPoint placeOf(long item);
  static UIViewController top();
  // REQUIRES: a grid is on top.
  static PUPhotosGridViewControllerState& grid();
  static std::string title();
  // The texts of all labels on the screen.
  static std::vector<std::string> texts();
  // The names of the items selected in the grid on show.
  std::vector<std::string> selected() const;

  library::LibraryFolder folder;
  std::unique_ptr<library::PhotoLibrary> library;

 private:
  support::TemporaryFolder _root;
  const long _objectsBefore;
  std::optional<AutoreleasePool> _pool{std::in_place};
};

}  // namespace desktop::photos_ui
