// SPDX-License-Identifier: MIT
#include "tests/lumifact/views/golden.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "desktop/script/view_dump.h"

namespace lumifact {
namespace {

// The text with every list of numbers on one line.
std::string compacted(const std::string& json) {
  std::string text;
  std::size_t start = 0;
  for (std::size_t open = json.find('['); open != std::string::npos; open = json.find('[', start)) {
    const std::size_t close = json.find_first_of("[]{}\"", open + 1);
    text += json.substr(start, open + 1 - start);
    start = open + 1;
    if (close == std::string::npos || json[close] != ']') continue;
    for (const char character : json.substr(start, close - start))
      if (character != '\n' && character != ' ')
        text += character == ',' ? ", " : std::string(1, character);
    start = close;
  }
  return text + json.substr(start);
}

}  // namespace

void expectGolden(const std::string& name, bridge::UIView view) {
  const std::string actual = compacted(desktop::script::dumpView(view).dump(1)) + "\n";
  std::ifstream file(std::string(GOLDENS_FOLDER "/") + name + ".json");
  const std::string expected(std::istreambuf_iterator<char>(file), {});
  if (actual == expected) return;
  const std::string path = testing::TempDir() + name + ".json";
  std::ofstream(path) << actual;
  ADD_FAILURE() << name << " is not as it was. Compare:\ndiff -u " << GOLDENS_FOLDER "/" << name
                << ".json " << path;
}

}  // namespace lumifact
