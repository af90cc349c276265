// SPDX-License-Identifier: MIT
//
// registered_classes --headless --extensions FOLDER --script FILE ...
// Runs the photo application as a script says, then tells of the classes that an extension has
// registered meanwhile: their superclasses and methods with their encodings. An extension's methods
// lie in its own library, or, where that is not the system's kind of library, in none.
#include <dlfcn.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <set>
#include <span>
#include <vector>

#include "apps/photohost/options.h"
#include "apps/photohost/photo_application.h"
#include "bridge/runtime.h"
#include "desktop/pictures/workers/serve_decoder.h"

extern "C" {
int objc_getClassList(Class* buffer, int count);
Method* class_copyMethodList(Class aClass, unsigned* count);
SEL method_getName(Method method);
}

namespace {

std::vector<Class> allClasses() {
  std::vector<Class> classes(static_cast<std::size_t>(objc_getClassList(nullptr, 0)));
  objc_getClassList(classes.data(), static_cast<int>(classes.size()));
  return classes;
}

// A class's own methods; none of its superclass's.
std::vector<Method> methodsOf(Class aClass) {
  unsigned count = 0;
  Method* list = class_copyMethodList(aClass, &count);
  const std::vector<Method> methods(list, list + count);
  std::free(list);
  return methods;
}

class Extensions {
 public:
  explicit Extensions(const std::string& folder)
      : _folder(std::filesystem::absolute(folder).string()) {}

  // The host's classes have methods of the host too.
  bool own(Class aClass) const {
    std::vector<Method> methods = methodsOf(aClass);
    const std::vector<Method> ofClass = methodsOf(object_getClass(bridge::rawObject(aClass)));
    methods.insert(methods.end(), ofClass.begin(), ofClass.end());
    return !methods.empty() &&
           std::ranges::all_of(methods, [this](Method method) { return have(method); });
  }

 private:
  bool have(Method method) const {
    Dl_info library{};
    const auto* code = reinterpret_cast<const void*>(method_getImplementation(method));
    return dladdr(code, &library) == 0 || std::string(library.dli_fname).starts_with(_folder);
  }

  std::string _folder;
};

void addMethods(Class aClass, const std::string& prefix, std::set<std::string>& lines) {
  for (const Method method : methodsOf(aClass)) {
    const std::string selector = sel_getName(method_getName(method));
    // Every class of a class builder has these two.
    if (selector != "dealloc" && selector != "allocWithZone:")
      lines.insert(prefix + selector + " " + method_getTypeEncoding(method));
  }
}

void tellClasses(const Extensions& extensions) {
  std::set<std::string> lines;
  for (const Class aClass : allClasses()) {
    if (!extensions.own(aClass)) continue;
    const std::string name = class_getName(aClass);
    lines.insert(name + " : " + class_getName(class_getSuperclass(aClass)));
    addMethods(aClass, name + " -", lines);
    addMethods(object_getClass(bridge::rawObject(aClass)), name + " +", lines);
  }
  for (const std::string& line : lines) std::cout << line << "\n";
}

}  // namespace

int main(int count, char** arguments) {
  if (count > 1 && std::string_view(arguments[1]) == photohost::decoderArgument)
    return desktop::pictures::serveDecoder(desktop::pictures::decoderSocket);
  const photohost::Options options =
      photohost::readCommandLine({arguments + 1, arguments + count}).options;
  photohost::PhotoApplication application(count, arguments, options);
  const int status = application.run();
  tellClasses(Extensions(options.extensions));
  return status;
}
