// SPDX-License-Identifier: MIT
#include "tests/support/encoding_table.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace support {

EncodingTable::EncodingTable() {
  std::ifstream file(ENCODINGS_TEXT);
  for (std::string text; std::getline(file, text);) {
    if (text.empty() || text.starts_with('#')) continue;
    std::string framework;
    std::string selector;
    std::string source;
    Line line;
    std::istringstream(text) >> line.className >> framework >> selector >> line.encoding >> source;
    line.isSure = source != "unsure";
    _lines[selector].push_back(std::move(line));
  }
}

const std::vector<EncodingTable::Line>& EncodingTable::linesOf(const std::string& selector) const {
  static const std::vector<Line> none;
  const auto found = _lines.find(selector);
  return found == _lines.end() ? none : found->second;
}

const EncodingTable::Line* EncodingTable::find(const std::string& className,
                                               const std::string& selector) const {
  const auto& lines = linesOf(selector);
  const auto found = std::ranges::find(lines, className, &Line::className);
  return found == lines.end() ? nullptr : &*found;
}

std::string onThePhone(std::string encoding) {
  bool isName = false;  // of a structure
  for (char& letter : encoding) {
    if (letter == '{') isName = true;
    if (letter == '=') isName = false;
    if (letter == 'C' && !isName) letter = 'B';
  }
  return encoding;
}

}  // namespace support
