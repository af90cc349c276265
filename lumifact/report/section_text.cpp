// SPDX-License-Identifier: MIT
#include "lumifact/report/section_text.h"

#include "lumifact/report/sorted_entries.h"
#include "model/description.h"

namespace lumifact {

void appendValue(std::string& text, const model::Value& value) {
  if (const auto* string = value.asString()) {
    text += *string;
  } else {
    text += model::valueText(value);
  }
}

void appendElements(std::string& text, const model::Array& elements, std::string_view separator) {
  bool first = true;
  for (const model::Value& element : elements) {
    if (!first) text += separator;
    appendValue(text, element);
    first = false;
  }
}

std::string bracketed(const model::Array& elements) {
  std::string text = "[";
  appendElements(text, elements, ", ");
  return text += ']';
}

void appendEntry(std::string& text, std::string_view key, const model::Value& value) {
  appendLine(text, key, "");
  appendValue(text, value);
}

void appendLine(std::string& text, std::string_view key, std::string_view value) {
  text.append("\n  ").append(key).append(" = ").append(value);
}

void openSection(std::string& text, std::string_view name) {
  text.append("\n\n").append(name).append(" =\n{");
}

void closeSection(std::string& text) {
  text += "\n}";
}

void appendRewrittenSection(std::string& text, std::string_view name, model::Dictionary& section,
                            Reading reading, const model::KeyComparison& keyOrder) {
  openSection(text, name);
  for (auto* entry : sortedEntries(section, keyOrder)) {
    auto& [key, value] = *entry;
    if (auto readable = reading(key, value)) value = *std::move(readable);
    appendEntry(text, key, value);
  }
  closeSection(text);
}

void appendDescribedSection(std::string& text, std::string_view name, const model::Value& section) {
  text.append("\n\n").append(name).append(" = \n");
  text += model::halvingIndentation(model::description(section));
}

}  // namespace lumifact
