// SPDX-License-Identifier: MIT
//
// extension_account FOLDER
// Maps the folder's extensions into a host of small classes and tells what they do there: what was
// hooked and added, and for every such method what a message to it answers, what reached the host,
// what the extension sent and logged, and where exceptions went. Nothing but the runtime is asked,
// so the account of the phone's own library can be laid beside that of any other build of it.
#include <dlfcn.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <map>
#include <set>
#include <stdexcept>

#include "bridge/corefoundation.h"
#include "bridge/foundation.h"
#include "bridge/hook.h"
#include "desktop/loader/extension_loader.h"
#include "desktop/runtime/debug_log.h"
#include "desktop/runtime/method_hooks.h"
#include "desktop/uikit/application/uikit.h"
#include "tests/bridge/victims.h"
#include "tests/lumifact/loader/extension_host.h"
#include "tests/lumifact/loader/host_classes.h"

extern "C" {
Method* class_copyMethodList(Class aClass, unsigned* count);
SEL method_getName(Method method);
BOOL class_isMetaClass(Class aClass);
}

namespace lumifact::host {
namespace {

// The library of the extension, once it is mapped.
std::string& extensionFile() {
  static auto& kept = *new std::string;
  return kept;
}

// Messages that the extension sends, by class and selector, with their number. Arguments may be
// evaluated in any order, so the order is the compiler's and means nothing.
std::map<std::string, int>& sentMessages() {
  static auto& kept = *new std::map<std::string, int>;
  return kept;
}

void noteMessage(Class aClass, SEL selector, const void* sender) {
  Dl_info library{};
  if (!aClass || extensionFile().empty() || dladdr(sender, &library) == 0) return;
  if (library.dli_fname != extensionFile()) return;
  const char* sign = class_isMetaClass(aClass) ? "+" : "-";
  ++sentMessages()[std::string(sign) + class_getName(aClass) + " " + sel_getName(selector)];
}

// What a method of the host does besides, when it is told to.
enum class Trouble { none, raised, thrown };
Trouble trouble = Trouble::none;

void makeTrouble(id self, SEL command) {
  if (trouble == Trouble::raised) victims::raise(self, command);
  if (trouble == Trouble::thrown) throw std::runtime_error("thrown by the host");
}

BOOL isPresentedForPreview(id self, SEL command) {
  makeTrouble(self, command);
  return 0;
}

bridge::Stock<void(id, SEL)> quietUpdateBars;
void updateBars(id self, SEL command) {
  quietUpdateBars(self, command);
  makeTrouble(self, command);
}

// One method is asked by a hook's own work, the other is what a hook replaces.
void registerTroublemakers() {
  class_addMethod(objc_getClass("PUOneUpViewController"), sel_registerName("isPresentedForPreview"),
                  reinterpret_cast<IMP>(&isPresentedForPreview), "C@:");
  desktop::runtime::replaceMethod(objc_getClass("PUOneUpBarsController"),
                                  sel_registerName("updateBars"),
                                  reinterpret_cast<IMP>(&updateBars), quietUpdateBars.slot());
}

void tell(const std::string& line) {
  std::cout << line << "\n";
}

std::set<std::string> hostClassNames() {
  std::set<std::string> names;
  for (const HostMethod& method : hostMethods()) names.insert(method.className);
  return names;
}

// A class's own methods: selector and encoding.
std::map<std::string, std::string> methodsOf(const std::string& className) {
  unsigned count = 0;
  Method* methods = class_copyMethodList(objc_getClass(className.c_str()), &count);
  std::map<std::string, std::string> found;
  for (const Method method : std::span(methods, count))
    found[sel_getName(method_getName(method))] = method_getTypeEncoding(method);
  std::free(methods);
  return found;
}

std::map<std::string, std::map<std::string, std::string>> methodsOfHost() {
  std::map<std::string, std::map<std::string, std::string>> found;
  for (const std::string& name : hostClassNames()) found[name] = methodsOf(name);
  return found;
}

const char* textOf(desktop::runtime::HookOutcome outcome) {
  using enum desktop::runtime::HookOutcome;
  switch (outcome) {
    case replacedOwn:
      return "its own";
    case extendedInherited:
      return "inherited";
    case missingClass:
      return "no class";
    case missingMethod:
      return "no method";
  }
  return "";
}

void tellLoading(const ExtensionHost& host, const std::string& folder) {
  tell("== Loading");
  const auto complain = [](const std::string& path, const std::string& reason) {
    tell("problem: " + path + ": " + reason);
  };
  std::vector<std::string> loaded;
  const auto events = host.eventsOf([&] {
    loaded = desktop::loader::loadExtensions(
        folder, {"com.apple.mobileslideshow", kCFCoreFoundationVersionNumber}, complain);
  });
  for (const std::string& event : events) tell(event);
  for (const std::string& path : loaded)
    tell("loaded " + std::filesystem::path(path).filename().string());
  for (const auto& [className, selector, outcome] : desktop::runtime::methodHooks())
    tell("hooked " + className + " " + selector + ": " + textOf(outcome));
  if (!loaded.empty()) extensionFile() = loaded.front();
}

// The object is called what it is, since addresses differ.
std::string answerText(const std::string& answer, const std::string& ofHost) {
  if (answer == ofHost) return "what the host does";
  return answer.starts_with("object ") ? "another object" : answer;
}

void tellCalls(bridge::Object receiver, std::string_view encoding) {
  for (const HostCall& call : hostCalls()) {
    const char* whose = call.receiver == receiver.get() ? "" : " of another object";
    const bool isAsSent = call.arguments == sampleArguments(encoding);
    tell("  reaches the host: " + call.selector + whose + (isAsSent ? "" : ", changed"));
  }
}

// Lines of the log are told where they come. Making them is the platform's business: the phone's
// log takes an object, so its messages are not counted.
void tellMessages() {
  for (const auto& [message, count] : sentMessages())
    if (message != "+NSString stringWithUTF8String:")
      tell("  sends " + message + (count > 1 ? " x" + std::to_string(count) : ""));
}

void tellSending(const std::string& className, const std::string& selector,
                 std::string_view encoding) {
  const bridge::AutoreleasePool pool;
  tell(className + " " + selector + " " + std::string(encoding));
  const auto receiver = victims::make(objc_getClass(className.c_str()));
  hostCalls().clear();
  sentMessages().clear();
  const std::string answer = sendSample(receiver, selector.c_str(), encoding);
  tell("  answers " + answerText(answer, hostAnswer(receiver, encoding)));
  tellCalls(receiver, encoding);
  tellMessages();
}

void tellException(const char* what, const char* className, const char* selector, Trouble kind) {
  const bridge::AutoreleasePool pool;
  tell(std::string(className) + " " + selector + ", " + what);
  const auto receiver = victims::make(objc_getClass(className));
  trouble = kind;
  try {
    bridge::dispatch<void>(receiver->get(), sel_registerName(selector));
    tell("  comes back");
  } catch (const std::exception& exception) {
    tell(std::string("  throws ") + exception.what());
  } catch (...) {
    tell("  raises");
  }
  trouble = Trouble::none;
}

void tellExceptions() {
  tell("== Exceptions");
  for (const auto& [className, selector] : {std::pair{"PUOneUpViewController", "viewDidLoad"},
                                            std::pair{"PUOneUpBarsController", "updateBars"}}) {
    tellException("nothing is raised", className, selector, Trouble::none);
    tellException("the host raises", className, selector, Trouble::raised);
    tellException("the host throws", className, selector, Trouble::thrown);
  }
}

void tellAll(const std::string& folder) {
  const ExtensionHost host("com.apple.mobileslideshow");
  desktop::runtime::setDebugLogSink([](const desktop::runtime::DebugLogLine& line) {
    tell("  logs " + line.message() + " as " + line.format);
  });
  desktop::uikit::registerUIKit();
  victims::ClassMaker("PUOneUpViewController", "UIViewController").build();  // it presents
  registerHostClasses();
  registerTroublemakers();
  const auto before = methodsOfHost();
  tellLoading(host, folder);
  tell("== Replaced methods");
  for (const HostMethod& method : hostMethods())
    tellSending(method.className, method.selector, method.encoding);
  tell("== Added methods");
  for (const auto& [className, methods] : methodsOfHost())
    for (const auto& [selector, encoding] : methods)
      if (!before.at(className).contains(selector)) tellSending(className, selector, encoding);
  tellExceptions();
}

}  // namespace
}  // namespace lumifact::host

// Every message passes through here, since a program's functions come before its libraries'.
extern "C" {

__attribute__((visibility("default"))) IMP objc_msg_lookup(id receiver, SEL selector) {
  static const auto next = reinterpret_cast<IMP (*)(id, SEL)>(dlsym(RTLD_NEXT, "objc_msg_lookup"));
  lumifact::host::noteMessage(object_getClass(receiver), selector, __builtin_return_address(0));
  return next(receiver, selector);
}

__attribute__((visibility("default"))) IMP objc_msg_lookup_super(objc_super* super, SEL selector) {
  static const auto next =
      reinterpret_cast<IMP (*)(objc_super*, SEL)>(dlsym(RTLD_NEXT, "objc_msg_lookup_super"));
  lumifact::host::noteMessage(super->superclass, selector, __builtin_return_address(0));
  return next(super, selector);
}
}

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "extension_account FOLDER\n";
    return 2;
  }
  const bridge::AutoreleasePool pool;
  lumifact::host::tellAll(arguments[1]);
  return 0;
}
