// SPDX-License-Identifier: MIT
//
// Property lists, read with a budget and written back.
#pragma once

#include <string>

#include "desktop/io/byte_view.h"
#include "model/result.h"
#include "model/value.h"

namespace desktop::foundation {

enum class PropertyListFormat { binary, xml };

struct PropertyList {
  model::Value root;
  PropertyListFormat format = PropertyListFormat::xml;
};

// Reads a binary or XML property list. Numbers of single precision become the double of their own
// shortest decimal; UIDs are refused.
//
// Errors: no property list; damaged; over budget (largestPropertyList bytes, maximumNesting
// levels, maximumPropertyListNodes values, each counted every time it is reached).
model::Result<PropertyList> parsePropertyList(ByteView bytes);

inline constexpr std::size_t largestPropertyList = 1 << 20;  // bytes
inline constexpr int maximumPropertyListNodes = 100'000;

// The property list of a regular file.
// Errors: as above, and what the system says of a file that cannot be read.
model::Result<PropertyList> readPropertyList(const std::string& path);

// The bytes of the value as a property list. Nulls have no form and are refused by an error.
model::Result<std::string> serializePropertyList(const model::Value& root,
                                                 PropertyListFormat format);

}  // namespace desktop::foundation
