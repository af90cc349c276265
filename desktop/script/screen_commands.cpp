// SPDX-License-Identifier: MIT
//
// What is on the screen: written down, pictured, expected.
#include <iostream>

#include "desktop/render/screen_picture.h"
#include "desktop/script/screen_text.h"
#include "desktop/script/script_runner.h"
#include "desktop/script/tree_dump.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/screen.h"
#include "io/file_replacement.h"

namespace desktop::script {
namespace {

using Arguments = ScriptRunner::Arguments;
using Outcome = ScriptRunner::Outcome;

// What failed, with the file that it is about.
Outcome named(const std::string& file, const Outcome& failed) {
  if (!failed) return std::nullopt;
  return model::Error{file + ": " + failed->reason};
}

Outcome dump(Arguments words) {
  if (words.size() > 1) return model::Error{"dump takes one file at most"};
  uikit::application().prepareFrame();
  const std::string text = dumpScreen() + "\n";
  if (words.empty()) {
    if (std::cout << text << std::flush) return std::nullopt;
    return model::Error{"standard output: cannot be written"};
  }
  return named(words[0].text, io::writeOutput(words[0].text, text));
}

Outcome screenshot(Arguments words) {
  if (words.size() != 1) return model::Error{"screenshot takes a file"};
  uikit::application().prepareFrame();
  return named(words[0].text, render::writeScreenshot(words[0].text, uikit::screen().scale));
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
