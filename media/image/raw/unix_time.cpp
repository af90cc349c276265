// SPDX-License-Identifier: MIT
#include "media/image/raw/unix_time.h"

#include <string>

#include "model/civil_time.h"
#include "model/number_text.h"

namespace media::image {

std::optional<model::Value> exifTextOfUnixTime(std::uint32_t seconds) {
  if (seconds == 0) return std::nullopt;
  const model::CivilTime time = model::civilTimeInUtc({static_cast<double>(seconds)});
  std::string text = model::integerText(time.year);
  for (const auto& [separator, number] :
       {std::pair{':', time.month}, std::pair{':', time.day}, std::pair{' ', time.hour},
        std::pair{':', time.minute}, std::pair{':', time.second}}) {
    text += separator;
    text += model::paddedIntegerText(number, 2);
  }
  return model::Value(std::move(text));
}

}  // namespace media::image
