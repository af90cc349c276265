// SPDX-License-Identifier: MIT
//
// Values as text: the plain text of one value, and the old-style property-list description of
// containers.
#pragma once

#include <string>
#include <string_view>

#include "model/value.h"

namespace model {

// A value's default text form: a string as it is, an integer in decimal, a real as the shortest
// decimal that reads back the same (realText), a boolean as 1 or 0, data as <6c756d69 66>, a date
// in UTC as 2018-09-30 12:03:11 +0000, null as <null>, a container in its description form.
std::string valueText(const Value& value);

// The description form of any value, starting at column 0. A dictionary is "{", a line an entry in
// literal order ("    key = value;", four blanks a level), "}"; an array is "(", a line an
// element with "," after all but the last, ")". A nested bracket opens right where its value
// stands. Scalars and keys of ASCII letters and digits only are bare, other texts in double quotes
// with \" \\ \n \t, and \U0007 for other control characters; data is never quoted.
std::string description(const Value& value);
std::string description(const Dictionary& dictionary);

// The texts of the elements (valueText), joined by the separator.
std::string joinedElements(const Array& elements, std::string_view separator);

// The text with each run of four blanks replaced by two, left to right and without overlap.
std::string halvingIndentation(std::string_view text);

}  // namespace model
