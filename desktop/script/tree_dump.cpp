// SPDX-License-Identifier: MIT
#include "desktop/script/tree_dump.h"

#include "desktop/script/node_dump.h"
#include "desktop/script/node_parts.h"
#include "desktop/script/screen_parts.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/platform_log.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::script {
namespace {

using uikit::application;
using uikit::platformLog;

// JSON has no infinities, and a file's bytes may be no text: both become something that it has.
std::string textOf(const Json& json) {
  return json.dump(1, ' ', false, Json::error_handler_t::replace);
}

CGRect shownFrame(const uikit::UIView& view) {
  return uikit::apply(view.toSuperview(), view.shown().bounds);
}

}  // namespace

Json dumpView(bridge::UIView view) {
  const uikit::UIView& state = uikit::UIView::of(view);
  const uikit::ViewAppearance shown = state.shown();
  Json node;
  node["class"] = classNameOf(view);
  node["frame"] = jsonOf(shownFrame(state));
  node["alpha"] = shown.alpha;
  node["hidden"] = state.isHidden();
  node["tag"] = state.tag();
  node["autoresizing"] = state.autoresizingMask();
  addClassParts(view, node);
  if (shown.background.alpha > 0) node["background"] = jsonOf(shown.background);
  if (shown.transform != CGAffineTransform{}) node["transform"] = jsonOf(shown.transform);
  addLayer(state.layer(), node);
  addGestures(state, node);
  Json children = Json::array();
  for (const auto& child : state.subviews()) children.push_back(dumpView(child.get()));
  if (!children.empty()) node["children"] = std::move(children);
  return node;
}

std::string dumpScreen() {
  const bridge::AutoreleasePool pool;
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
