// SPDX-License-Identifier: MIT
//
// Prints every message that the handles of bridge/ can send.
#include <cstdio>

#include "bridge/avfoundation.h"
#include "bridge/foundation.h"
#include "bridge/photos.h"
#include "bridge/quartz.h"
#include "bridge/uikit.h"
#include "desktop/uikit/graphics/encodings.h"

// Where index paths are made.
template <>
struct bridge::Encoding<const NSUInteger*> {
  static constexpr FixedString text = "r^Q";
};

int main() {
  for (const std::string& line : bridge::recorder::lines()) std::puts(line.c_str());
}
