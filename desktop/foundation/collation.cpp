// SPDX-License-Identifier: MIT
#include "desktop/foundation/collation.h"

#include <unicode/coll.h>

#include <algorithm>
#include <array>
#include <memory>
#include <mutex>
#include <string>

namespace desktop::foundation {

namespace {

// The languages whose order differs from the root's for ASCII already: letters that stand
// elsewhere, and pairs such as "ch" or "aa" that count as one. Serbian
// is one of them in Latin script.
constexpr std::array<std::string_view, 35> languagesWithTheirOwnAlphabet = {
    "az", "br", "bs",  "ceb", "cs",  "cy", "da", "dsb", "ee", "et", "fil", "fo",
    "fy", "ha", "haw", "hr",  "hsb", "hu", "ig", "kl",  "lt", "lv", "nb",  "nn",
    "no", "om", "sh",  "sk",  "sq",  "sr", "tl", "to",  "tr", "uz", "yo"};

bool isAscii(std::string_view text) {
  return std::ranges::all_of(
      text, [](char character) { return static_cast<unsigned char>(character) < 0x80; });
}

// A collator costs over a millisecond, so it is made when it is first asked.
class LazyCollator {
 public:
  explicit LazyCollator(std::string localeName) : _localeName(std::move(localeName)) {}

  int compare(std::string_view left, std::string_view right) {
    std::call_once(_made, [this] { make(); });
    if (_collator == nullptr) return model::compareKeys(left, right);
    UErrorCode status = U_ZERO_ERROR;
    return _collator->compareUTF8({left.data(), static_cast<int32_t>(left.size())},
                                  {right.data(), static_cast<int32_t>(right.size())}, status);
  }

 private:
  // Secondary strength compares all letters first, then all accents, and never case.
  void make() {
    UErrorCode status = U_ZERO_ERROR;
    _collator.reset(icu::Collator::createInstance(icu::Locale(_localeName.c_str()), status));
    if (_collator == nullptr) return;
    _collator->setAttribute(UCOL_STRENGTH, UCOL_SECONDARY, status);
    _collator->setAttribute(UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, status);
    _collator->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_OFF, status);
    _collator->setAttribute(UCOL_CASE_LEVEL, UCOL_OFF, status);
    _collator->setAttribute(UCOL_NORMALIZATION_MODE, UCOL_ON, status);
    if (U_FAILURE(status)) _collator.reset();
  }

  std::string _localeName;
  std::once_flag _made;
  std::unique_ptr<icu::Collator> _collator;
};

}  // namespace

model::KeyComparison keyComparison(const Locale& locale) {
  const std::string language = locale.name().substr(0, locale.name().find('_'));
  const bool rootOrderForAscii = std::ranges::count(languagesWithTheirOwnAlphabet, language) == 0;
  const auto collator = std::make_shared<LazyCollator>(locale.name());
  return [rootOrderForAscii, collator](std::string_view left, std::string_view right) {
    if (rootOrderForAscii && isAscii(left) && isAscii(right)) {
      return model::compareKeys(left, right);
    }
    return collator->compare(left, right);
  };
}

}  // namespace desktop::foundation
