// SPDX-License-Identifier: MIT
#include "apps/photohost/main_loop.h"

#include "apps/photohost/keys.h"
#include "desktop/photos_ui/navigation/navigation.h"

namespace photohost {

MainLoop::MainLoop(std::function<void()> turn) {
  _window.setTitle("Photos");
  _window.turn = std::move(turn);
  _window.middlePressed = [](CGPoint at) { desktop::photos_ui::peekAt(at); };
  _window.keyPressed = [this](const QKeyEvent& event) { return pressKey(event, _window); };
}

void MainLoop::watch(int descriptor) {
  if (descriptor < 0) return;
  _notifiers.push_back(std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read));
  QObject::connect(_notifiers.back().get(), &QSocketNotifier::activated, &_window,
                   [this] { _window.wake(); });
}

int MainLoop::run() {
  _window.show();
  return QGuiApplication::exec();
}

}  // namespace photohost
