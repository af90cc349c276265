// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "desktop/uikit/text/visible_text.h"

namespace desktop::render {

// The text as it is painted, as Qt takes it; of the same length.
inline QString visibleString(std::u16string_view text) {
  const std::u16string visible = uikit::visibleText(text);
  return QString::fromUtf16(visible.data(), static_cast<qsizetype>(visible.size()));
}

}  // namespace desktop::render
