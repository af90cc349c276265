// SPDX-License-Identifier: MIT
//
//   gallery VIEW                          shows a view in a window
//   gallery VIEW --picture FILE [--scale N]  writes its picture; no display is needed
#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>

#include "apps/gallery/scenes.h"
#include "bridge/runtime/autorelease_pool.h"
#include "desktop/faces/foundation/foundation_runtime.h"
#include "desktop/render/renderer.h"
#include "desktop/render/screen_picture.h"
#include "desktop/render/window.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/base/screen.h"

namespace {

using namespace desktop;

int fail(const std::string& reason) {
  std::cerr << "gallery: " << reason << "\n";
  return 1;
}

int showWindow() {
  render::Window window;
  window.setTitle("Gallery");
  window.show();
  return QGuiApplication::exec();
}

int run(int count, char** arguments) {
  CLI::App app("Shows the views of the extension on sample data", "gallery");
  std::string view;
  std::string picture;
  double scale = 2;
  app.add_option("VIEW", view, "Which view")->required();
  app.add_option("--picture", picture, "Writes a PNG file instead")->type_name("FILE");
  app.add_option("--scale", scale, "Pixels a point")->check(CLI::Range(1.0, 3.0));
  CLI11_PARSE(app, count, arguments);

  const AutoreleasePool pool;
  render::Renderer renderer(count, arguments,
                            picture.empty() ? render::Display::real : render::Display::none);
  faces::correctFoundation({});
  uikit::registerUIKit();
  uikit::screen().scale = scale;
  if (const auto failed = gallery::showScene(view)) return fail(failed->reason);
  if (picture.empty()) return showWindow();
  const auto failed = render::writeScreenshot(picture, scale);
  return failed ? fail(picture + ": " + failed->reason) : 0;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    return run(count, arguments);
  } catch (const std::exception& exception) {
    return fail(exception.what());
  }
}
