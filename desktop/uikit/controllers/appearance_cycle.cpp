// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/appearance_cycle.h"

namespace desktop::uikit {

bool AppearanceCycle::begin(bool comes, bool isAnimated) {
  if (comes == isThereOrComing()) return false;
  _stage = comes ? Stage::appearing : Stage::disappearing;
  _isAnimated = isAnimated;
  return true;
}

std::optional<bool> AppearanceCycle::end() {
  if (_stage == Stage::gone || _stage == Stage::shown) return std::nullopt;
  _stage = _stage == Stage::appearing ? Stage::shown : Stage::gone;
  return _stage == Stage::shown;
}

}  // namespace desktop::uikit
