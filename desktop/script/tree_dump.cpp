// SPDX-License-Identifier: MIT
#include "desktop/script/tree_dump.h"

#include "desktop/script/node_dump.h"
#include "desktop/script/screen_parts.h"
#include "desktop/script/view_dump.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/platform_log.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::script {
namespace {

using uikit::application;
using uikit::platformLog;

// JSON has no infinities, and a file's bytes may be no text: both become something that it has.
// In ASCII, so that no name commands a terminal.
std::string textOf(const Json& json) {
  return json.dump(1, ' ', true, Json::error_handler_t::replace);
}

}  // namespace

std::string dumpScreen() {
  const AutoreleasePool pool;
  Json screen;
  screen["screen"] = {{"width", uikit::screen().size.width},
                      {"height", uikit::screen().size.height}};
  addControllers(screen);
  screen["opened"] = application().opened;
  screen["log"] = platformLog();
  screen["view"] =
      application().windows.empty() ? Json() : dumpView(application().windows.front().get());
  return textOf(screen);
}

}  // namespace desktop::script
