// SPDX-License-Identifier: MIT
//
// All that the extension registers with the runtime, as one readable text.
#include <gtest/gtest.h>

#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

#include "tests/lumifact/loader/loaded_extension.h"

namespace lumifact::host {
namespace {

// A BOOL is an unsigned char ("C") on the desktop and a bool ("B") on the phone. Nothing else of
// the interface differs; the other C stands in the names of structures.
std::string onThePhone(std::string encoding) {
  for (std::size_t at = 0; at < encoding.size(); ++at)
    if (encoding[at] == 'C' && encoding.substr(at, 2) != "CG") encoding[at] = 'B';
  return encoding;
}

std::string interfaceText() {
  std::ostringstream text;
  text << "# class selector kind encoding-on-the-desktop encoding-on-the-phone\n";
  for (const bridge::HookRow& row : loadedExtension().probe->rows)
    text << row.className << " " << row.selector << " "
         << (row.kind == bridge::HookKind::added ? "added" : "replaced") << " " << row.encoding
         << " " << onThePhone(row.encoding) << "\n";
  return text.str();
}

std::string contentsOf(const std::string& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Interface, IsTheOneThatIsWrittenDown) {
  const std::string actual = interfaceText();
  EXPECT_EQ(actual, contentsOf(INTERFACE_TEXT));
  if (!HasFailure()) return;
  const std::string path = testing::TempDir() + "interface_actual.txt";
  std::ofstream(path) << actual;
  std::cout << "The actual text is in " << path << "\n";
}

}  // namespace
}  // namespace lumifact::host
