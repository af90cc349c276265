// SPDX-License-Identifier: MIT
//
// Compact unwind information as a linker writes it, from lists of words.
#pragma once

#include <cstdint>
#include <vector>

namespace device::emulated {

// A function with an encoding.
struct UnwindEntry {
  std::uint32_t begin = 0;
  std::uint32_t encoding = 0;
};

struct HandlersEntry {
  std::uint32_t begin = 0;
  std::uint32_t handlers = 0;
};

// One page of functions, plain or compressed. A compressed one finds the encodings of its functions
// among `shared` or, behind those, `own`.
struct UnwindRecipe {
  std::uint32_t version = 1;
  std::uint32_t pageKind = 2;
  std::vector<std::uint32_t> personalities = {};
  std::vector<std::uint32_t> shared = {};
  std::vector<std::uint32_t> own = {};
  std::vector<UnwindEntry> functions =
      {};  // of a compressed page: the index in place of the encoding
  std::vector<HandlersEntry> handlers = {};
  std::uint32_t end = 0;  // of the last function

  std::vector<std::uint8_t> build() const {
    constexpr std::uint32_t headWords = 7;
    const auto count = [](const auto& list) { return static_cast<std::uint32_t>(list.size()); };
    const std::uint32_t personalitiesAt = headWords + count(shared);
    const std::uint32_t indexAt = personalitiesAt + count(personalities);
    const std::uint32_t handlersAt = indexAt + 6;
    const std::uint32_t handlersEnd = handlersAt + 2 * count(handlers);
    const std::uint32_t base = functions.empty() ? 0 : functions.front().begin;

    std::vector<std::uint32_t> words = {version,
                                        headWords * 4,
                                        count(shared),
                                        personalitiesAt * 4,
                                        count(personalities),
                                        indexAt * 4,
                                        2};
    words.insert(words.end(), shared.begin(), shared.end());
    words.insert(words.end(), personalities.begin(), personalities.end());
    words.insert(words.end(), {base, handlersEnd * 4, handlersAt * 4});
    words.insert(words.end(), {end, 0, handlersEnd * 4});
    for (const auto& [begin, table] : handlers) words.insert(words.end(), {begin, table});

    const bool isPlain = pageKind == 2;
    const std::uint32_t entriesAt = isPlain ? 8 : 12;  // bytes behind the page's beginning
    words.insert(words.end(), {pageKind, entriesAt | count(functions) << 16});
    if (!isPlain) words.push_back((entriesAt + 4 * count(functions)) | count(own) << 16);
    for (const auto& [begin, encoding] : functions) {
      if (isPlain)
        words.insert(words.end(), {begin, encoding});
      else
        words.push_back((begin - base) | encoding << 24);
    }
    words.insert(words.end(), own.begin(), own.end());

    std::vector<std::uint8_t> bytes;
    for (const std::uint32_t word : words)
      for (int byte = 0; byte < 4; ++byte)
        bytes.push_back(static_cast<std::uint8_t>(word >> (8 * byte)));
    return bytes;
  }
};

}  // namespace device::emulated
