// SPDX-License-Identifier: MIT
//
// Property lists, read with a budget and written back.
#pragma once

#include <string>

#include "io/byte_view.h"
#include "model/result.h"
#include "model/value.h"

namespace foundation {

enum class PropertyListFormat { binary, xml };

struct PropertyList {
  model::Value root;
  PropertyListFormat format = PropertyListFormat::xml;
};

// Reads a binary or XML property list. Numbers of single precision become the double of their own
// shortest decimal; UIDs are refused.
//
// Errors: no property list; damaged; over budget (the limits below and model::maximumNesting
// levels; a value is counted every time it is reached).
model::Result<PropertyList> parsePropertyList(io::ByteView bytes);

inline constexpr std::size_t largestPropertyList = 1 << 20;       // bytes of a file
inline constexpr int maximumPropertyListNodes = 100'000;          // values, keys among them
inline constexpr std::size_t maximumPropertyListBytes = 4 << 20;  // bytes of text and data, kept

// The property list of a regular file.
// Errors: as above, and what the system says of a file that cannot be read.
model::Result<PropertyList> readPropertyList(const std::string& path);

// The bytes of the value as a property list. XML keeps whole seconds of dates.
// Errors: a null, which has no form; in XML, a text with control characters that XML cannot hold.
model::Result<std::string> serializePropertyList(const model::Value& root,
                                                 PropertyListFormat format);

}  // namespace foundation
