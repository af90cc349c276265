// SPDX-License-Identifier: MIT
//
// The test program is also the process that decodes its pictures.
#include <gmock/gmock.h>

#include <string_view>

#include "desktop/pictures/workers/serve_decoder.h"

int main(int argc, char** argv) {
  using namespace desktop::pictures;
  if (argc > 1 && std::string_view(argv[1]) == "--decode-pictures")
    return serveDecoder(decoderSocket);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
