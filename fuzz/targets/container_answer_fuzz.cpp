// SPDX-License-Identifier: MIT
//
// What a reader of other containers, taken over by a file, may say to the program that started it:
// the greeting, and an answer with the report of it. What is accepted must be sayable again.
#include <cstdint>
#include <cstdlib>

#include "lumifact/report/data_parser.h"
#include "media/movie/other/asset_message.h"
#include "workers/greeting.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static_cast<void>(workers::acceptGreeting({data, size}));
  const auto answer = media::movie::answerOfBytes({data, size});
  if (!answer) return 0;
  if (!media::movie::answerOfBytes(media::movie::bytesOfAnswer(*answer))) std::abort();
  static_cast<void>(media::movie::textOfCuts(*answer));
  model::Dictionary unused;
  std::optional<std::string> coordinates;
  static_cast<void>(lumifact::DataParser::parseAVURLAsset(&answer->asset, unused, coordinates));
  return 0;
}
