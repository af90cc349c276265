// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "desktop/uikit/text/utf16.h"

namespace desktop::render {

// The text as Qt takes it, lone surrogates replaced; of the same length.
inline QString validString(std::u16string_view text) {
  const std::u16string valid = uikit::withoutLoneSurrogates(text);
  return QString::fromUtf16(valid.data(), static_cast<qsizetype>(valid.size()));
}

}  // namespace desktop::render
