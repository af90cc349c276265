// SPDX-License-Identifier: MIT
#include "foundation/collation.h"

#include <algorithm>
#include <array>
#include <memory>
#include <mutex>
#include <string>

#include "foundation/locale_data.h"
#include "model/utf8.h"

namespace foundation {

namespace {

// The languages whose order differs from the root's for ASCII already: letters that stand
// elsewhere, and pairs such as "ch" or "aa" that count as one. Serbian
// is one of them in Latin script.
constexpr std::array<std::string_view, 35> languagesWithTheirOwnAlphabet = {
    "az", "br", "bs",  "ceb", "cs",  "cy", "da", "dsb", "ee", "et", "fil", "fo",
    "fy", "ha", "haw", "hr",  "hsb", "hu", "ig", "kl",  "lt", "lv", "nb",  "nn",
    "no", "om", "sh",  "sk",  "sq",  "sr", "tl", "to",  "tr", "uz", "yo"};

// A collator costs over a millisecond, so it is made when it is first asked.
class LazyCollator {
 public:
  explicit LazyCollator(const Locale& locale) : _locale(locale) {}

  int compare(std::string_view left, std::string_view right) {
    std::call_once(_made, [this] {
      if (const LocaleData* data = localeData()) _collator = data->makeCollator(_locale);
    });
    return _collator ? _collator->compare(left, right) : model::compareKeys(left, right);
  }

 private:
  Locale _locale;
  std::once_flag _made;
  std::unique_ptr<Collator> _collator;
};

}  // namespace

model::KeyComparison keyComparison(const Locale& locale) {
  const std::string language = locale.name().substr(0, locale.name().find('_'));
  const bool rootOrderForAscii = std::ranges::count(languagesWithTheirOwnAlphabet, language) == 0;
  const auto collator = std::make_shared<LazyCollator>(locale);
  return [rootOrderForAscii, collator](std::string_view left, std::string_view right) {
    if (rootOrderForAscii && model::isAscii(left) && model::isAscii(right)) {
      return model::compareKeys(left, right);
    }
    return collator->compare(left, right);
  };
}

}  // namespace foundation
