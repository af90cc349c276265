// SPDX-License-Identifier: MIT
//
// The XML form of property lists.
#pragma once

#include <string>

#include "io/byte_view.h"
#include "model/result.h"
#include "model/value.h"

namespace foundation {

// The root object. Entities of a document type are not expanded, nothing outside is fetched.
// Errors: no property list; damaged; an integer beyond 64 bits; over budget.
model::Result<model::Value> parseXmlPropertyList(io::ByteView bytes);

// The value as a document in the platform's layout: a line an element, tabs, base64 lines that get
// shorter as they are indented.
// Errors: a null; a text with control characters that XML cannot hold.
model::Result<std::string> xmlPropertyList(const model::Value& root);

}  // namespace foundation
