// SPDX-License-Identifier: MIT
//
// XMP values as the values that the sections show: XMP writes every number, fraction, date and
// coordinate as a text. ISO 16684-2, annex A ("Exif schema").
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "media/image/xmp/xmp_value.h"
#include "model/value.h"

namespace media::image {

// "72", "4/1" or "2.5" as a real; none for other texts and a denominator of 0.
std::optional<double> xmpReal(std::string_view text);

// Each of these gives none where the value holds nothing of its kind.
std::optional<model::Value> xmpText(const XmpValue& value);
// The texts of an array as one, with "; " between them.
std::optional<model::Value> xmpJoinedText(const XmpValue& value);
std::optional<model::Value> xmpTextArray(const XmpValue& value);
std::optional<model::Value> xmpInteger(const XmpValue& value);
std::optional<model::Value> xmpIntegerArray(const XmpValue& value);
std::optional<model::Value> xmpRealValue(const XmpValue& value);
// Numbers as an array's items, or as one text with blanks between them ("24/1 120/1 4/1 4/1").
std::optional<model::Value> xmpRealArray(const XmpValue& value);
// "0231" as 2, 3, 1.
std::optional<model::Value> xmpVersion(const XmpValue& value);
// "2.3.0.0" as 2, 3, 0, 0.
std::optional<model::Value> xmpDottedVersion(const XmpValue& value);
// An ISO 8601 date as "2018:09:30 14:03:11".
std::optional<model::Value> xmpExifDate(const XmpValue& value);
// Texts, arrays and structures as what they are, without empty ones; fields under their names
// without prefix.
std::optional<model::Value> xmpTree(const XmpValue& value);

// Whether the name of a property can be a key: it is not empty, and valid UTF-8.
bool isXmpKey(std::string_view name);

// An ISO 8601 date, in parts; parts that it does not have are empty.
struct XmpDate {
  std::string_view year, month, day, hour, minute, second;
  std::string zone;  // "+0200", "+0000" for Z
};
std::optional<XmpDate> xmpDate(std::string_view text);

// "41,24.5N" or "41,24,30N" as degrees and a hemisphere letter.
struct XmpCoordinate {
  double degrees;
  std::string_view hemisphere;
};
std::optional<XmpCoordinate> xmpCoordinate(std::string_view text);

}  // namespace media::image
