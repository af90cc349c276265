// SPDX-License-Identifier: MIT
#include "desktop/script/node_parts.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"

namespace desktop::script {

void addGestures(const uikit::UIViewState& view, Json& node) {
  for (const auto& recognizer : view.gestureRecognizers()) {
    Json actions = Json::array();
    for (const auto& action : uikit::UIGestureRecognizerState::of(recognizer.get()).actions())
      actions.push_back(sel_getName(action.action));
    node["gestures"].push_back({{"class", classNameOf(recognizer.get())}, {"actions", actions}});
  }
}

}  // namespace desktop::script
