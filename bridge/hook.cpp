// SPDX-License-Identifier: MIT
#include "bridge/hook.h"

#include <string_view>

#include "bridge/guard.h"

namespace bridge {

void applyHooks(HookList rows) {
  std::string_view className;
  Class aClass = nullptr;
  for (const HookRow& row : rows) {
    if (row.className != className) {
      className = row.className;
      aClass = objc_getClass(row.className);
    }
    if (aClass) guarded([&] { row.apply(aClass, row); });
  }
}

}  // namespace bridge
