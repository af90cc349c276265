// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/view_gestures.h"

#include <algorithm>

#include "desktop/uikit/base/own_messages.h"

namespace desktop::uikit {

ViewGestures::~ViewGestures() {
  for (const auto& recognizer : _recognizers) viewIsGone(recognizer.get());
}

void ViewGestures::add(UIGestureRecognizer recognizer, UIView view) {
  if (!recognizer) return;
  const auto kept = Owned<UIGestureRecognizer>::retain(recognizer);
  recognizer.view().removeGestureRecognizer(recognizer);
  _recognizers.push_back(kept);
  moveTo(recognizer, view);
}

void ViewGestures::remove(UIGestureRecognizer recognizer) {
  const auto place = std::ranges::find(_recognizers, recognizer, &Owned<UIGestureRecognizer>::get);
  if (place == _recognizers.end()) return;
  moveTo(recognizer, UIView());
  _recognizers.erase(place);
}

void ViewGestures::leaveTouches() const {
  const auto recognizers = _recognizers;
  for (const auto& recognizer : recognizers) uikit::leaveTouches(recognizer.get());
}

}  // namespace desktop::uikit
