// SPDX-License-Identifier: MIT
//
// The desktop photo application: shows a folder of photos and videos, in a window or, without a
// display, as a script says.
#include <csignal>
#include <iostream>
#include <string_view>

#include "apps/photohost/messages.h"
#include "apps/photohost/options.h"
#include "apps/photohost/photo_application.h"
#include "desktop/pictures/workers/serve_decoder.h"

namespace {

constexpr int usageStatus = 2;

}  // namespace

int main(int count, char** arguments) {
  // A reader that goes away and a file that may not grow are seen by the write that fails.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  photohost::takeQtMessages();
  if (count > 1 && std::string_view(arguments[1]) == photohost::decoderArgument)
    return desktop::pictures::serveDecoder(desktop::pictures::decoderSocket);
  const photohost::CommandLine line =
      photohost::readCommandLine({arguments + 1, arguments + count});
  if (!line.usageError.empty()) {
    photohost::complain(line.usageError);
    std::cerr << "Try 'photohost --help'.\n";
    return usageStatus;
  }
  std::cout << line.text;
  if (!line.text.empty()) return 0;
  return photohost::PhotoApplication(count, arguments, line.options).run();
}
