// SPDX-License-Identifier: MIT
//
// What a reader of other containers says of a file. The file may have taken the reader over, so the
// receiving side believes no number and no text.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "model/media_asset.h"

namespace media::movie {

// The one order that there is: to read the file that comes with it. Its name would be no help: what
// a file holds counts, whatever it is called.
inline constexpr std::array<std::uint8_t, 4> readOrder = {'r', 'e', 'a', 'd'};

// What a limit cut, in the order in which it is told.
enum class Cut : std::uint8_t { bytes, packets, tracks, text, configuration };

struct ContainerAnswer {
  enum class Kind : std::uint8_t {
    none,     // it is no container that the reader knows
    asset,    // there is an asset
    tooMuch,  // there are too many streams, or they take more memory than there may be
  };

  Kind kind = Kind::none;
  std::uint8_t cuts = 0;  // a bit for each Cut
  model::MediaAsset asset = {};

  void note(Cut cut) { cuts |= static_cast<std::uint8_t>(1U << static_cast<unsigned>(cut)); }
  bool has(Cut cut) const { return ((cuts >> static_cast<unsigned>(cut)) & 1U) != 0; }
};

// Within the limits: what is too long or too many is cut, and noted.
std::vector<std::uint8_t> bytesOfAnswer(ContainerAnswer answer);

// None where these bytes are no such answer. What is accepted keeps the limits, its texts are valid
// UTF-8 and its numbers finite, but for durations that are not known.
std::optional<ContainerAnswer> answerOfBytes(std::span<const std::uint8_t> bytes);

// The cuts as a text that can stand behind "FILE: "; empty where there are none.
std::string textOfCuts(const ContainerAnswer& answer);

}  // namespace media::movie
