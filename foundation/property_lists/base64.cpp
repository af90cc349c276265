// SPDX-License-Identifier: MIT
#include "foundation/property_lists/base64.h"

#include <algorithm>
#include <array>

namespace foundation {

namespace {

constexpr std::string_view alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
static_assert(alphabet.size() == 64);

constexpr std::uint8_t noDigit = 0xFF;

// The value of each character, noDigit for those outside the alphabet.
constexpr auto digitValues = [] {
  std::array<std::uint8_t, 256> values{};
  values.fill(noDigit);
  for (std::size_t index = 0; index < alphabet.size(); ++index) {
    values[static_cast<std::uint8_t>(alphabet[index])] = static_cast<std::uint8_t>(index);
  }
  return values;
}();

// Three bytes (missing ones zero) as a number of 24 bits.
std::uint32_t groupAt(const model::Data& data, std::size_t offset) {
  std::uint32_t group = 0;
  for (std::size_t index = offset; index < offset + 3; ++index) {
    group = (group << 8) | (index < data.size() ? data[index] : 0U);
  }
  return group;
}

}  // namespace

std::string base64Text(const model::Data& data) {
  std::string text;
  text.reserve((data.size() + 2) / 3 * 4);
  for (std::size_t offset = 0; offset < data.size(); offset += 3) {
    const std::uint32_t group = groupAt(data, offset);
    const std::size_t bytes = std::min<std::size_t>(3, data.size() - offset);
    for (std::size_t digit = 0; digit < 4; ++digit) {
      text += digit > bytes ? '=' : alphabet[(group >> (18 - 6 * digit)) & 63];
    }
  }
  return text;
}

std::optional<model::Data> dataFromBase64(std::string_view text) {
  if (text.size() % 4 != 0) return std::nullopt;
  std::size_t padding = 0;
  while (padding < 2 && text.size() > padding && text[text.size() - 1 - padding] == '=') ++padding;
  model::Data data;
  data.reserve(text.size() / 4 * 3);
  std::uint32_t group = 0;
  for (std::size_t index = 0; index < text.size(); ++index) {
    const bool padded = index >= text.size() - padding;
    const std::uint8_t digit = padded ? 0 : digitValues[static_cast<std::uint8_t>(text[index])];
    if (digit == noDigit) return std::nullopt;
    group = (group << 6) | digit;
    if (index % 4 != 3) continue;
    for (int shift = 16; shift >= 0; shift -= 8) {
      data.push_back(static_cast<std::uint8_t>(group >> shift));
    }
  }
  for (; padding > 0 && !data.empty(); --padding) data.pop_back();
  return data;
}

}  // namespace foundation
