// SPDX-License-Identifier: MIT
//
// The application in a window: Qt's main loop, which wakes for input, time and descriptors.
#pragma once

#include <QGuiApplication>
#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/render/window.h"

namespace photohost {

class MainLoop {
 public:
  // `turn` is called once a turn, before the frame.
  explicit MainLoop(std::function<void()> turn);

  // Takes a turn whenever the descriptor is readable; -1 is never.
  void watch(int descriptor);
  // Shows the window and runs until it is closed; the exit status.
  int run();

 private:
  desktop::render::Window _window;
  std::vector<std::unique_ptr<QSocketNotifier>> _notifiers;
};

}  // namespace photohost
