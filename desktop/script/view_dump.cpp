// SPDX-License-Identifier: MIT
#include "desktop/script/view_dump.h"

#include "desktop/script/node_dump.h"
#include "desktop/script/node_parts.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::script {
namespace {

CGRect shownFrame(const uikit::UIViewState& view) {
  return uikit::apply(view.toSuperview(), view.shown().bounds);
}

}  // namespace

Json dumpView(UIView view) {
  const uikit::UIViewState& state = uikit::UIViewState::of(view);
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

}  // namespace desktop::script
