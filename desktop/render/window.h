// SPDX-License-Identifier: MIT
//
// The application in a window of the desktop, by the real clock. Mouse: a press is a touch, the
// right button is a long press, the wheel scrolls.
#pragma once

#include <QBackingStore>
#include <QElapsedTimer>
#include <QTimer>
#include <QWindow>
#include <functional>

#include "desktop/render/screen_picture.h"

namespace desktop::render {

class Window : public QWindow {
 public:
  // Keys are the application's: whether it used this one.
  std::function<bool(const QKeyEvent&)> keyPressed;
  // The middle button at a point of the screen; may be unset.
  std::function<void(CGPoint)> middlePressed;
  // Called once a turn of the main loop, before the frame is prepared.
  std::function<void()> turn;

  // A window as large as the screen; it follows when the window is resized.
  Window();

  // Lets the main loop take a turn soon: something outside happened.
  void wake();

 protected:
  bool event(QEvent* event) override;
  void exposeEvent(QExposeEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  double scale() const;
  void takeTurn();
  void showChanges();
  void planNextTurn();
  void pressLong(CGPoint at);

  QBackingStore _store;
  ScreenPicture _picture;
  QElapsedTimer _clock;
  QTimer _timer;
  bool _isStale = false;  // the window system lost what it showed
};

}  // namespace desktop::render
