// SPDX-License-Identifier: MIT
//
// Messages that their receiver need not answer, as those to data sources and delegates.
#pragma once

#include <optional>

#include "bridge/runtime.h"

namespace desktop::uikit {

// What the object answers; none where it does not know the message, or is nil.
template <typename R, bridge::FixedString Selector, typename... Arguments>
std::optional<R> asked(bridge::Object object, const Arguments&... arguments) {
  if (!bridge::respondsTo<Selector>(object)) return {};
  return bridge::send<R, Selector>(object, arguments...);
}

template <bridge::FixedString Selector, typename... Arguments>
void told(bridge::Object object, const Arguments&... arguments) {
  if (bridge::respondsTo<Selector>(object)) bridge::send<void, Selector>(object, arguments...);
}

}  // namespace desktop::uikit
