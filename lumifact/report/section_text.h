// SPDX-License-Identifier: MIT
//
// The pieces that every section of the report is written with. Each appends to the report text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/key_order.h"
#include "model/value.h"

namespace lumifact {

// The value's default text form.
void appendValue(std::string& text, const model::Value& value);

// The texts of the elements between separators.
void appendElements(std::string& text, const model::Array& elements, std::string_view separator);

// The elements as "[a, b]", which stands for an array that has no form of its own.
std::string bracketed(const model::Array& elements);

// A line "  key = value", from a value and from a text.
void appendEntry(std::string& text, std::string_view key, const model::Value& value);
void appendLine(std::string& text, std::string_view key, std::string_view value);

// "{Name} =" and "{" after an empty line, and the closing "}".
void openSection(std::string& text, std::string_view name);
void closeSection(std::string& text);

// The readable form of a value; none where it stays as it is.
using Reading = std::optional<std::string> (*)(std::string_view key, const model::Value& value);

// A section whose values are rewritten in place into their readable forms, a line an entry.
void appendRewrittenSection(std::string& text, std::string_view name, model::Dictionary& section,
                            Reading reading, const model::KeyComparison& keyOrder);

// "{Name} = " (trailing blank) after an empty line, and the value's description form with two
// blanks a level.
void appendDescribedSection(std::string& text, std::string_view name, const model::Value& section);

}  // namespace lumifact
