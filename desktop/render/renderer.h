// SPDX-License-Identifier: MIT
//
// The entry to this room.
#pragma once

#include <QGuiApplication>

namespace desktop::render {

enum class Display { real, none };

// Qt's application and the measuring of text with real fonts, for as long as it lives. One a
// process. Without a display nothing asks for one: pictures are painted all the same.
class Renderer {
 public:
  // The arguments outlive the renderer.
  Renderer(int& argumentCount, char** arguments, Display display);
  ~Renderer();

 private:
  // Chosen before the application is made.
  struct Platform {
    explicit Platform(Display display);
  } _platform;
  QGuiApplication _application;
};

}  // namespace desktop::render
