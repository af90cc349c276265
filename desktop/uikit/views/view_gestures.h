// SPDX-License-Identifier: MIT
//
// The gesture recognisers of a view, which it keeps alive. Each belongs to one view at a time.
#pragma once

#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/object_list.h"

namespace desktop::uikit {

class ViewGestures {
 public:
  ViewGestures() = default;
  ViewGestures(const ViewGestures&) = delete;
  ViewGestures& operator=(const ViewGestures&) = delete;
  // Tells them that their view is gone.
  ~ViewGestures();

  const ObjectList<UIGestureRecognizer>& all() const { return _recognizers; }
  // Takes it from the view that it belongs to, for the view whose list this is.
  void add(UIGestureRecognizer recognizer, UIView view);
  void remove(UIGestureRecognizer recognizer);
  // Ends what is under way.
  void leaveTouches() const;

 private:
  ObjectList<UIGestureRecognizer> _recognizers;
};

}  // namespace desktop::uikit
