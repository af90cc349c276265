// SPDX-License-Identifier: MIT
#include "desktop/render/renderer.h"

#include "desktop/render/qt_text_engine.h"

namespace desktop::render {

Renderer::Platform::Platform(Display display) {
  if (display == Display::none) qputenv("QT_QPA_PLATFORM", "offscreen");
}

Renderer::Renderer(int& argumentCount, char** arguments, Display display)
    : _platform(display), _application(argumentCount, arguments) {
  uikit::setTextEngine(makeQtTextEngine());
}

Renderer::~Renderer() {
  uikit::setTextEngine(nullptr);
}

}  // namespace desktop::render
