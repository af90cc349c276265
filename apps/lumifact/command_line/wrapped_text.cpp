// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/wrapped_text.h"

#include <algorithm>

namespace lumifact::tool {

namespace {

void appendWords(std::string& into, std::string_view line, std::size_t indent) {
  std::size_t column = indent;
  while (!line.empty()) {
    const std::string_view word = takePart(line, ' ');
    if (column > indent && column + 1 + word.size() > textWidth) {
      into.append("\n").append(indent, ' ');
      column = indent;
    } else if (column > indent) {
      into += ' ';
      ++column;
    }
    into += word;
    column += word.size();
  }
}

}  // namespace

std::string_view takePart(std::string_view& text, char separator) {
  const std::size_t end = std::min(text.find(separator), text.size());
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return part;
}

void appendWrapped(std::string& into, std::string_view text, std::size_t indent) {
  appendWords(into, takePart(text, '\n'), indent);
  while (!text.empty()) {
    into += '\n';
    const std::string_view line = takePart(text, '\n');
    if (!line.empty()) into.append(indent, ' ');
    appendWords(into, line, indent);
  }
  into += '\n';
}

}  // namespace lumifact::tool
