// SPDX-License-Identifier: MIT
//
// Messages that their receiver need not answer, as those to data sources and delegates.
#pragma once

#include <optional>

#include "bridge/runtime.h"
#include "desktop/platform.h"

namespace desktop::uikit {

// What the object answers; none where it does not know the message, or is nil.
template <typename R, FixedString Selector, typename... Arguments>
std::optional<R> asked(Object object, const Arguments&... arguments) {
  if (!respondsTo<Selector>(object)) return {};
  return send<R, Selector>(object, arguments...);
}

template <FixedString Selector, typename... Arguments>
void told(Object object, const Arguments&... arguments) {
  if (respondsTo<Selector>(object)) send<void, Selector>(object, arguments...);
}

}  // namespace desktop::uikit
