// SPDX-License-Identifier: MIT
//
// The test program is also the process that decodes its pictures, or makes them up.
#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "desktop/pictures/workers/serve_decoder.h"

namespace desktop::pictures {
namespace {

// A picture twice as wide as high that covers what was asked for; none of files named "broken".
model::Result<Picture> makePicture(const std::string& name, io::ByteSource&,
                                   const Request& request) {
  if (name.find("broken") != std::string::npos) return model::Error{"cut short"};
  const int height = request.maxHeight;
  return Picture{
      2 * height, height,
      std::vector<std::uint32_t>(static_cast<std::size_t>(2 * height * height), 0xff336699)};
}

}  // namespace
}  // namespace desktop::pictures

int main(int argc, char** argv) {
  using namespace desktop::pictures;
  const std::string_view argument = argc > 1 ? argv[1] : "";
  if (argument == "--decode-pictures") return serveDecoder(decoderSocket);
  if (argument == "--make-pictures") return serveDecoder(decoderSocket, makePicture);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
