// SPDX-License-Identifier: MIT
//
// What is on the screen: written down, pictured, expected.
#include <fstream>
#include <iostream>

#include "desktop/render/screen_picture.h"
#include "desktop/script/screen_text.h"
#include "desktop/script/script_runner.h"
#include "desktop/script/tree_dump.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/screen.h"

namespace desktop::script {
namespace {

using Arguments = ScriptRunner::Arguments;
using Outcome = ScriptRunner::Outcome;

Outcome dump(Arguments words) {
  if (words.size() > 1) return model::Error{"dump takes one file at most"};
  uikit::application().prepareFrame();
  const std::string text = dumpScreen() + "\n";
  if (words.empty()) {
    std::cout << text << std::flush;
    return std::nullopt;
  }
  std::ofstream file(words[0].text, std::ios::binary);
  if (file << text << std::flush) return std::nullopt;
  return model::Error{words[0].text + ": cannot be written"};
}

Outcome screenshot(Arguments words) {
  if (words.size() != 1) return model::Error{"screenshot takes a file"};
  uikit::application().prepareFrame();
  if (const auto failed = render::writeScreenshot(words[0].text, uikit::screen().scale))
    return model::Error{words[0].text + ": " + failed->reason};
  return std::nullopt;
}

Outcome expect(Arguments words) {
  if (words.size() != 1) return model::Error{"expect takes one text"};
  uikit::application().prepareFrame();
  if (isOnScreen(words[0].text)) return std::nullopt;
  return model::Error{"\"" + words[0].text + "\" is not on screen"};
}

Outcome expectNot(Arguments words) {
  if (words.size() != 1) return model::Error{"expect-not takes one text"};
  uikit::application().prepareFrame();
  if (!isOnScreen(words[0].text)) return std::nullopt;
  return model::Error{"\"" + words[0].text + "\" is on screen"};
}

}  // namespace

void addScreenCommands(ScriptRunner& runner) {
  runner.add("dump", dump);
  runner.add("screenshot", screenshot);
  runner.add("expect", expect);
  runner.add("expect-not", expectNot);
}

}  // namespace desktop::script
