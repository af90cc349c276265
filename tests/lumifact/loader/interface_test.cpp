// SPDX-License-Identifier: MIT
//
// All that the extension registers with the runtime, as one readable text.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

#include "tests/lumifact/loader/loaded_extension.h"

extern "C" Method* class_copyMethodList(Class aClass, unsigned* count);
extern "C" SEL method_getName(Method method);

namespace lumifact::host {
namespace {

// A BOOL is an unsigned char ("C") on the desktop and a bool ("B") on the phone. Nothing else of
// the interface differs; the other C stands in the names of structures.
std::string onThePhone(std::string encoding) {
  for (std::size_t at = 0; at < encoding.size(); ++at)
    if (encoding[at] == 'C' && encoding.substr(at, 2) != "CG") encoding[at] = 'B';
  return encoding;
}

std::string hookText() {
  std::ostringstream text;
  text << "# class selector kind encoding-on-the-desktop encoding-on-the-phone\n";
  for (const bridge::HookRow& row : loadedExtension().probe->rows)
    text << row.className << " " << row.selector << " "
         << (row.kind == bridge::HookKind::added ? "added" : "replaced") << " " << row.encoding
         << " " << onThePhone(row.encoding) << "\n";
  return text.str();
}

// The methods of a class itself, sorted, without those that every class of our own has.
std::string methodText(Class aClass, const char* sign) {
  unsigned count = 0;
  Method* methods = class_copyMethodList(aClass, &count);
  std::vector<std::string> lines;
  for (const Method method : std::span(methods, count)) {
    const std::string selector = sel_getName(method_getName(method));
    const std::string encoding = method_getTypeEncoding(method);
    if (selector != "dealloc" && selector != "allocWithZone:")
      lines.push_back(sign + selector + " " + encoding + " " + onThePhone(encoding) + "\n");
  }
  std::free(methods);
  std::ranges::sort(lines);
  std::string text;
  for (const std::string& line : lines) text += line;
  return text;
}

std::string classText() {
  std::string text = "# own class : superclass, then its methods\n";
  for (const Class aClass : loadedExtension().probe->ownClasses()) {
    if (!aClass) continue;
    text += std::string(class_getName(aClass)) + " : " +
            class_getName(class_getSuperclass(aClass)) + "\n" +
            methodText(object_getClass(bridge::rawObject(aClass)), "  +") +
            methodText(aClass, "  -");
  }
  return text;
}

std::string contentsOf(const std::string& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Interface, IsTheOneThatIsWrittenDown) {
  const std::string actual = hookText() + classText();
  EXPECT_EQ(actual, contentsOf(INTERFACE_TEXT));
  if (!HasFailure()) return;
  const std::string path = testing::TempDir() + "interface_actual.txt";
  std::ofstream(path) << actual;
  std::cout << "The actual text is in " << path << "\n";
}

}  // namespace
}  // namespace lumifact::host
