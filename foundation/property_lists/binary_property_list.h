// SPDX-License-Identifier: MIT
//
// The binary form of property lists ("bplist00"): objects anywhere in the file, a table of their
// offsets, a trailer that says where the table is.
#pragma once

#include <string>

#include "io/byte_view.h"
#include "model/result.h"
#include "model/value.h"

namespace foundation {

// From 1970-01-01, where our dates start, to 2001-01-01, where the form's do.
constexpr double secondsTo2001 = 978307200;

// Whether the bytes say that they are a binary property list.
bool isBinaryPropertyList(io::ByteView bytes);

// The root object. Errors: damaged; an object of a kind that property lists do not have; over
// budget.
model::Result<model::Value> parseBinaryPropertyList(io::ByteView bytes);

// The bytes of the value; equal texts, numbers, dates and data are written once.
// Errors: a null.
model::Result<std::string> binaryPropertyList(const model::Value& root);

}  // namespace foundation
