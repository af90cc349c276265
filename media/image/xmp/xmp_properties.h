// SPDX-License-Identifier: MIT
//
// Which XMP property is shown under which key of which section.
#pragma once

#include <string_view>

#include "media/image/xmp/xmp_value.h"
#include "model/value.h"

namespace media::image {

// One property: where it is shown, and what puts it there unless the key has a value already.
struct XmpRow {
  XmpName name;
  std::string_view section;
  std::string_view key;
  void (*store)(const XmpValue& value, const XmpRow& row, model::Dictionary& properties);
};

// The row of a property, or null where it is not shown.
const XmpRow* xmpRow(XmpName name);

}  // namespace media::image
