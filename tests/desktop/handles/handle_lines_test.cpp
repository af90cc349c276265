// SPDX-License-Identifier: MIT
//
// What the handles of bridge/ send is what the desktop's classes answer, and what the platform's
// headers declare: the same selectors, with arguments and results of the same types.
#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <set>
#include <sstream>

#include "bridge/runtime.h"
#include "desktop/faces/movie/avfoundation_runtime.h"
#include "desktop/photos_ui/photos_ui.h"
#include "desktop/platform.h"
#include "desktop/uikit/application/uikit.h"
#include "tests/support/encoding_table.h"

// The runtime's own, which nothing but this test asks for.
extern "C" int objc_getClassList(Class* classes, int capacity);

namespace desktop {
namespace {

// A message as a handle sends it.
struct Line {
  std::string receiver;  // a handle; id or Class where an object is made or a class is asked
  std::string selector;
  std::string encoding;
  std::string result;
};

std::vector<Line> handleLines() {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(HANDLE_LINES_PATH, "r"), &pclose);
  std::vector<Line> lines;
  std::array<char, 1'000> text{};
  while (pipe && std::fgets(text.data(), text.size(), pipe.get())) {
    Line line;
    std::istringstream(text.data()) >> line.receiver >> line.selector >> line.encoding >>
        line.result;
    lines.push_back(line);
  }
  return lines;
}

// The class of a handle's name; null for handles of any object, and what is no handle.
Class classOf(const std::string& handle) {
  if (handle == "bridge::Object") return nullptr;  // the runtime has an old class of this name
  constexpr std::string_view space = "bridge::";
  return handle.starts_with(space) ? objc_getClass(handle.substr(space.size()).c_str()) : nullptr;
}

// Without the places of arguments that compilers write behind their types, and without qualifiers.
std::string plain(std::string_view encoding) {
  std::string text;
  for (const char letter : encoding)
    if (std::string_view("0123456789rnNoORV").find(letter) == std::string_view::npos)
      text += letter;
  return text;
}

std::vector<Class> allClasses() {
  std::vector<Class> all(static_cast<std::size_t>(objc_getClassList(nullptr, 0)));
  all.resize(static_cast<std::size_t>(objc_getClassList(all.data(), static_cast<int>(all.size()))));
  return all;
}

bool isOrIsBelow(Class aClass, Class above) {
  while (aClass && aClass != above) aClass = class_getSuperclass(aClass);
  return aClass;
}

// Who may get a line's message: the receiver's class, or where that has none of its own name any
// class; where a class is asked or an object is made, what comes of it.
std::vector<Class> receiversOf(const Line& line) {
  if (const Class receiver = classOf(line.receiver)) return {receiver};
  const Class made = classOf(line.result);
  if (line.receiver.starts_with("objc_object")) return {made};
  const bool isAsked = line.receiver.starts_with("objc_class");
  const auto method = sel_registerName(line.selector.c_str());
  if (isAsked && made && class_getInstanceMethod(object_getClass(bridge::rawObject(made)), method))
    return {object_getClass(bridge::rawObject(made))};
  std::vector<Class> all = allClasses();
  if (isAsked)
    for (Class& aClass : all) aClass = object_getClass(bridge::rawObject(aClass));
  return all;
}

// The encodings with which a line's message is answered: by its receivers, or else by those below
// them, as what only some of them answer.
std::set<std::string> answersTo(const Line& line) {
  const SEL selector = sel_registerName(line.selector.c_str());
  std::set<std::string> answers;
  const auto add = [&](Class aClass) {
    if (const Method method = class_getInstanceMethod(aClass, selector))
      answers.insert(plain(method_getTypeEncoding(method)));
  };
  const auto receivers = receiversOf(line);
  for (const Class receiver : receivers) add(receiver);
  if (answers.empty() && receivers.size() == 1)
    for (const Class aClass : allClasses())
      if (isOrIsBelow(aClass, receivers[0])) add(aClass);
  return answers;
}

// The lines of the table that speak of what a handle sends: those of its class, or where a class is
// asked or an object is made those of any.
std::vector<support::EncodingTable::Line> declarationsOf(const Line& line,
                                                         const support::EncodingTable& table) {
  constexpr std::string_view space = "bridge::";
  auto declared = table.linesOf(line.selector);
  const bool isHandle = line.receiver.starts_with(space);
  const bool isClass = line.receiver.starts_with("objc_class");
  const std::string name = isHandle ? line.receiver.substr(space.size()) : "";
  std::erase_if(declared, [&](const support::EncodingTable::Line& declaration) {
    if (isHandle) return declaration.className != name;
    return isClass && !declaration.className.starts_with('+');
  });
  return declared;
}

TEST(HandleLines, AreAnsweredWithTheTypesThatTheySend) {
  const AutoreleasePool pool;
  uikit::registerUIKit();
  photos_ui::registerPhotosUI();
  faces::registerAVFoundation();
  const auto lines = handleLines();
  ASSERT_GT(lines.size(), 400U);
  for (const Line& line : lines)
    EXPECT_THAT(answersTo(line), testing::Contains(plain(line.encoding)))
        << line.receiver << " " << line.selector;
}

TEST(HandleLines, HaveTheTypesOfThePublicHeaders) {
  const support::EncodingTable table;
  std::size_t unsure = 0;
  for (const Line& line : handleLines()) {
    const auto declared = declarationsOf(line, table);
    const auto isNotSure = [](const auto& declaration) { return !declaration.isSure; };
    if (std::ranges::any_of(declared, isNotSure)) {
      ++unsure;
      continue;
    }
    std::vector<std::string> encodings;
    for (const auto& declaration : declared) encodings.push_back(declaration.encoding);
    EXPECT_THAT(encodings, testing::Contains(support::onThePhone(line.encoding)))
        << line.receiver << " " << line.selector;
  }
  EXPECT_LE(unsure, 3U);
}

}  // namespace
}  // namespace desktop
