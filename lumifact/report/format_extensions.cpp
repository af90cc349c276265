// SPDX-License-Identifier: MIT
#include "lumifact/report/format_extensions.h"

#include <algorithm>
#include <string_view>

#include "lumifact/report/section_text.h"
#include "lumifact/report/sorted_entries.h"

namespace lumifact {

namespace {

void appendNestedBlock(std::string& text, std::string_view key, const model::Dictionary& entries,
                       const model::KeyComparison& keyOrder) {
  const auto sorted = sortedEntries(entries, keyOrder);
  const auto last = std::find_if(sorted.rbegin(), sorted.rend(), [](const auto* entry) {
    return entry->second.kind() == model::Kind::array;
  });
  if (last == sorted.rend()) return;
  const auto& [innerKey, elements] = **last;
  text.append("\n  ").append(key).append("\n  {\n    ").append(innerKey).append(" = ");
  appendElements(text, *elements.asArray(), ",");
  text += "\n  }";
}

}  // namespace

void appendExtensions(std::string& text, const model::Dictionary& extensions,
                      const model::KeyComparison& keyOrder) {
  for (const auto* entry : sortedEntries(extensions, keyOrder)) {
    const auto& [key, value] = *entry;
    if (const auto* entries = value.asDictionary()) {
      appendNestedBlock(text, key, *entries, keyOrder);
    } else if (const auto* elements = value.asArray()) {
      appendLine(text, key, "[");
      appendElements(text, *elements, ",");
      text += ']';
    } else {
      appendEntry(text, key, value);
    }
  }
}

}  // namespace lumifact
