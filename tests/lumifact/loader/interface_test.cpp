// SPDX-License-Identifier: MIT
//
// All that the extension registers with the runtime, as one readable text.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>

#include "tests/lumifact/loader/loaded_extension.h"
#include "tests/support/encoding_table.h"
#include "tests/support/temporary_folder.h"

extern "C" Method* class_copyMethodList(Class aClass, unsigned* count);
extern "C" SEL method_getName(Method method);

namespace lumifact::host {
namespace {

std::string hookText() {
  std::ostringstream text;
  text << "# class selector kind encoding-on-the-desktop encoding-on-the-phone\n";
  for (const bridge::HookRow& row : loadedExtension().probe->rows)
    text << row.className << " " << row.selector << " "
         << (row.kind == bridge::HookKind::added ? "added" : "replaced") << " " << row.encoding
         << " " << support::onThePhone(row.encoding) << "\n";
  return text.str();
}

struct OwnMethod {
  std::string selector;
  std::string encoding;
};

// The methods of a class itself, sorted, without those that every class of our own has.
std::vector<OwnMethod> methodsOf(Class aClass) {
  unsigned count = 0;
  Method* methods = class_copyMethodList(aClass, &count);
  std::vector<OwnMethod> all;
  for (const Method method : std::span(methods, count))
    all.push_back({sel_getName(method_getName(method)), method_getTypeEncoding(method)});
  std::free(methods);
  std::erase_if(all, [](const OwnMethod& method) {
    return method.selector == "dealloc" || method.selector == "allocWithZone:";
  });
  std::ranges::sort(all, {}, &OwnMethod::selector);
  return all;
}

std::string methodText(Class aClass, const char* sign) {
  std::string text;
  for (const auto& [selector, encoding] : methodsOf(aClass))
    text.append(sign).append(selector).append(" ").append(encoding).append(" ").append(
        support::onThePhone(encoding) + "\n");
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

TEST(Interface, IsTheOneThatIsWrittenDown) {
  const std::string actual = hookText() + classText();
  EXPECT_EQ(actual, support::contentsOf(INTERFACE_TEXT));
  if (!HasFailure()) return;
  const std::string path = testing::TempDir() + "interface_actual.txt";
  std::ofstream(path) << actual;
  std::cout << "The actual text is in " << path << "\n";
}

class TypesTest : public testing::Test {
 protected:
  void expectTyped(const std::string& className, const std::string& selector,
                   const std::string& encoding) const {
    const auto* const line = table.find(className, selector);
    ASSERT_TRUE(line) << className << " " << selector;
    EXPECT_EQ(support::onThePhone(encoding), line->encoding) << className << " " << selector;
  }

  void expectTyped(const std::string& className, Class aClass) const {
    for (const auto& [selector, encoding] : methodsOf(aClass))
      expectTyped(className, selector, encoding);
  }

  support::EncodingTable table;
};

TEST_F(TypesTest, OfHooksAreThoseOfThePublicHeaders) {
  for (const bridge::HookRow& row : loadedExtension().probe->rows)
    expectTyped(row.className, row.selector, row.encoding);
}

TEST_F(TypesTest, OfOwnMethodsAreThoseOfThePublicHeaders) {
  for (const Class aClass : loadedExtension().probe->ownClasses()) {
    ASSERT_TRUE(aClass);
    const std::string name = class_getName(aClass);
    expectTyped(name, aClass);
    expectTyped("+" + name, object_getClass(bridge::rawObject(aClass)));
  }
}

}  // namespace
}  // namespace lumifact::host
