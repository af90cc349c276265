// SPDX-License-Identifier: MIT
//
// The property tree as JSON. Integers and reals are told apart (72 and 72.0); what JSON lacks is an
// object with one marked key:
//
//   {"$data": "bHVtaWY="}              bytes, in base64
//   {"$date": "2018-09-30T12:03:11Z"}  a date, ISO 8601 in UTC
//   {"$real": "nan"}                   "nan", "inf" or "-inf"
//   {"$dictionary": {...}}             a dictionary that would read as one of these four
#pragma once

#include <string>
#include <string_view>

#include "model/result.h"
#include "model/value.h"

namespace lumifact::tool {

// Appends the value on one line. Always valid UTF-8; control characters and those that turn the
// direction of writing are escaped, so the line is safe on a terminal. Entries stand in literal
// order of their keys. The same in every locale.
void appendJson(std::string& text, const model::Value& value);
void appendJson(std::string& text, const model::Dictionary& dictionary);

// Appends a text as a JSON string, quotes included. Invalid UTF-8 becomes U+FFFD.
void appendJsonString(std::string& text, std::string_view characters);

// Reads one JSON text. A number written without a fraction and an exponent is an integer where it
// fits 64 bits, else a real; of a key that occurs twice the last counts.
//
// Errors: what is wrong with the syntax and where; numbers beyond the range of a double; more
// than model::maximumNesting containers inside each other; a marked key with a value that does
// not read.
model::Result<model::Value> parseJson(std::string_view text);

}  // namespace lumifact::tool
