// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/utf16.h"

namespace desktop::uikit {
namespace {

bool isPair(std::u16string_view text, std::size_t index) {
  return index + 1 < text.size() && isLeadSurrogate(text[index]) &&
         isTrailSurrogate(text[index + 1]);
}

}  // namespace

std::size_t outsidePair(std::u16string_view text, std::size_t index) {
  return index > 0 && isPair(text, index - 1) ? index - 1 : index;
}

std::u16string withoutLoneSurrogates(std::u16string_view text) {
  constexpr char16_t replacement = 0xFFFD;
  std::u16string made(text);
  for (std::size_t index = 0; index < made.size(); ++index) {
    if (isPair(text, index))
      ++index;
    else if (isLeadSurrogate(made[index]) || isTrailSurrogate(made[index]))
      made[index] = replacement;
  }
  return made;
}

std::u16string utf16Of(NSString text) {
  std::u16string units(text.length(), u'\0');
  text.getCharacters(units.data(), NSRange{0, units.size()});
  return units;
}

NSString stringOf(std::u16string_view units) {
  const std::u16string valid = withoutLoneSurrogates(units);
  const auto* const start = reinterpret_cast<const unsigned short*>(valid.data());
  auto made = makeWith<NSString, "initWithCharacters:length:">(NSString::classObject(), start,
                                                               NSUInteger{valid.size()});
  return made.autorelease();
}

}  // namespace desktop::uikit
