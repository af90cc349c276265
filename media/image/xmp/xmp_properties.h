// SPDX-License-Identifier: MIT
//
// Which XMP property is shown under which key of which section.
#pragma once

#include <optional>
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

// The row of a property; none where it is not shown. Properties of the IPTC's extension schema all
// are, under their own names, which the row then borrows.
std::optional<XmpRow> xmpRow(XmpName name);

// The row of another key that a property stands in for where nothing else has given it a value.
std::optional<XmpRow> xmpSubstituteRow(XmpName name);

}  // namespace media::image
