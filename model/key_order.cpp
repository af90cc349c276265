// SPDX-License-Identifier: MIT
#include "model/key_order.h"

#include <algorithm>
#include <array>

#include "model/utf8.h"

namespace model {

namespace {

// The characters in their order, capitals standing for both cases.
constexpr std::string_view asciiOrder =
    "\t\n\v\f\r _-,;:!?.'\"()[]{}@*/\\&#%`^+<=>|~$0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

// The rank of each ASCII character; 0 for those that the collation ignores.
constexpr std::array<char32_t, 128> asciiRanks = [] {
  std::array<char32_t, 128> ranks{};
  for (std::size_t index = 0; index < asciiOrder.size(); ++index) {
    const auto character = static_cast<unsigned char>(asciiOrder[index]);
    ranks[character] = static_cast<char32_t>(index + 1);
    if (character >= 'A' && character <= 'Z') ranks[character + 32U] = ranks[character];
  }
  return ranks;
}();

// Reads the ranks of a text's characters, one after the other, 0 at its end.
class RankReader {
 public:
  explicit RankReader(std::string_view text) : _text(text) {}

  char32_t next() {
    while (_offset < _text.size()) {
      const auto byte = static_cast<unsigned char>(_text[_offset]);
      if (byte >= 128) return nextBeyondAscii();
      ++_offset;
      if (asciiRanks[byte] != 0) return asciiRanks[byte];
    }
    return 0;
  }

 private:
  char32_t nextBeyondAscii() {
    const CodePoint character = codePointAt(_text, _offset);
    _offset += character.bytes;
    return 0x100 + character.value;
  }

  std::string_view _text;
  std::size_t _offset = 0;
};

}  // namespace

// Where two texts begin alike and the last byte of that is ASCII, nothing of it is to be compared.
int compareKeys(std::string_view left, std::string_view right) {
  std::size_t same = commonPrefix(left, right);
  while (same > 0 && static_cast<unsigned char>(left[same - 1]) >= 128) --same;
  RankReader leftRanks(left.substr(same));
  RankReader rightRanks(right.substr(same));
  for (;;) {
    const char32_t a = leftRanks.next();
    const char32_t b = rightRanks.next();
    if (a != b) return a < b ? -1 : 1;
    if (a == 0) return 0;
  }
}

std::vector<std::string_view> sortedKeys(const Dictionary& dictionary,
                                         const KeyComparison& comparison) {
  std::vector<std::string_view> keys;
  keys.reserve(dictionary.size());
  for (const auto& entry : dictionary) keys.push_back(entry.first);
  std::ranges::stable_sort(keys, [&](std::string_view left, std::string_view right) {
    return comparison(left, right) < 0;
  });
  return keys;
}

}  // namespace model
