// SPDX-License-Identifier: MIT
//
// How a controller's view comes and goes: what began is over before the same begins again, so that
// messages about it come in pairs.
#pragma once

#include <optional>

namespace desktop::uikit {

class AppearanceCycle {
 public:
  enum class Stage { gone, appearing, shown, disappearing };

  Stage stage() const { return _stage; }
  bool isThereOrComing() const { return _stage == Stage::appearing || _stage == Stage::shown; }
  // What began last.
  bool isAnimated() const { return _isAnimated; }

  // The view begins to come, or to go; false where it does so, or has done so, already.
  bool begin(bool comes, bool isAnimated);
  // What began is over: whether the view has come. None where nothing began.
  std::optional<bool> end();

 private:
  Stage _stage = Stage::gone;
  bool _isAnimated = false;
};

}  // namespace desktop::uikit
