// SPDX-License-Identifier: MIT
#include "desktop/script/script_line.h"

#include <charconv>
#include <cmath>

namespace desktop::script {
namespace {

bool isBlank(char character) {
  return character == ' ' || character == '\t' || character == '\r';
}

char escaped(char character) {
  return character == 'n' ? '\n' : character;
}

// The quoted word that begins at the index, which moves behind it.
model::Result<Word> quotedWord(std::string_view line, std::size_t& index) {
  Word word{"", true};
  for (++index; index < line.size(); ++index) {
    if (line[index] == '"') return ++index, word;
    if (line[index] == '\\' && index + 1 < line.size())
      word.text += escaped(line[++index]);
    else
      word.text += line[index];
  }
  return model::Error{"a quotation mark is missing"};
}

}  // namespace

model::Result<std::vector<Word>> wordsOf(std::string_view line) {
  std::vector<Word> words;
  std::size_t index = 0;
  while (true) {
    while (index < line.size() && isBlank(line[index])) ++index;
    if (index == line.size() || (words.empty() && line[index] == '#')) return words;
    if (line[index] == '"') {
      auto word = quotedWord(line, index);
      if (!word) return word.error();
      words.push_back(*std::move(word));
    } else {
      const std::size_t start = index;
      while (index < line.size() && !isBlank(line[index])) ++index;
      words.push_back({std::string(line.substr(start, index - start)), false});
    }
  }
}

model::Result<double> numberOf(const Word& word) {
  double value = 0;
  const char* const end = word.text.data() + word.text.size();
  const auto [last, error] = std::from_chars(word.text.data(), end, value);
  if (error == std::errc() && last == end && std::isfinite(value)) return value;
  return model::Error{"'" + word.text + "' is not a number"};
}

}  // namespace desktop::script
