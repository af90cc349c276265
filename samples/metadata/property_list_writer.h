// SPDX-License-Identifier: MIT
//
// Binary property lists ("bplist00"), as the phone puts them into its maker note.
#pragma once

#include "model/value.h"
#include "samples/formats/byte_writer.h"

namespace samples {

// The value as a binary property list. Integers, ASCII strings, data, arrays and dictionaries are
// all that maker notes hold; REQUIRES: nothing else occurs, and fewer than 256 objects.
Bytes binaryPropertyList(const model::Value& value);

}  // namespace samples
