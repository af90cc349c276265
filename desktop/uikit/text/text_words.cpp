// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/text_words.h"

#include <algorithm>

#include "desktop/uikit/text/utf16.h"

namespace desktop::uikit {
namespace {

bool isDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

// Anything beyond ASCII but signs, blanks and punctuation counts as a letter.
bool isLetter(char16_t unit) {
  if (unit < 0x80)
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || unit == u'_';
  if (unit <= 0xBF) return unit == 0xAA || unit == 0xB5 || unit == 0xBA;
  const bool isSign = unit == 0xD7 || unit == 0xF7;
  const bool isPunctuation = unit >= 0x2000 && unit <= 0x2BFF;
  const bool isWidePunctuation = unit >= 0x3000 && unit <= 0x3004;
  return !isSign && !isPunctuation && !isWidePunctuation;
}

bool isWordUnit(char16_t unit) {
  return isLetter(unit) || isDigit(unit);
}

// A point or comma in a number, a point or apostrophe in a word.
bool joins(std::u16string_view text, std::size_t index) {
  if (index == 0 || index + 1 >= text.size()) return false;
  const char16_t unit = text[index];
  const bool isInNumber = isDigit(text[index - 1]) && isDigit(text[index + 1]);
  const bool isInWord = isLetter(text[index - 1]) && isLetter(text[index + 1]);
  if (unit == u'.') return isInNumber || isInWord;
  if (unit == u',') return isInNumber;
  return (unit == u'\'' || unit == 0x2019) && isInWord;
}

bool isInWord(std::u16string_view text, std::size_t index) {
  return isWordUnit(text[index]) || joins(text, index);
}

}  // namespace

NSRange wordAt(std::u16string_view text, std::size_t index) {
  if (text.empty()) return {};
  index = outsidePair(text, std::min(index, text.size() - 1));
  std::size_t start = index;
  std::size_t end = index;
  while (end < text.size() && isInWord(text, end)) ++end;
  if (end == index) {
    const bool isPair = index + 2 <= text.size() && outsidePair(text, index + 1) == index;
    return {index, isPair ? 2UL : 1UL};
  }
  while (start > 0 && isInWord(text, start - 1)) --start;
  return {start, end - start};
}

}  // namespace desktop::uikit
