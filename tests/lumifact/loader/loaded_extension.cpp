// SPDX-License-Identifier: MIT
#include "tests/lumifact/loader/loaded_extension.h"

#include <dlfcn.h>

#include <algorithm>
#include <stdexcept>

#include "desktop/uikit/application/uikit.h"
#include "tests/bridge/victims.h"

namespace lumifact::host {
namespace {

constexpr char settingsAtLoad[] =
    "<plist version=\"1.0\"><dict><key>fontSize</key><integer>21</integer></dict></plist>";

IMP siblingMethod() {
  return method_getImplementation(class_getInstanceMethod(
      objc_getClass("HostSiblingViewController"), sel_registerName("viewWillAppear:")));
}

void load(LoadedExtension& extension) {
  void* library = dlopen(PROBE_EXTENSION, RTLD_NOW | RTLD_LOCAL);
  if (!library) throw std::runtime_error(dlerror());
  const auto probe = reinterpret_cast<ExtensionProbe*>(dlsym(library, "extensionProbe"));
  extension.probe = probe();
  extension.settingsAfter = extension.probe->settings;
}

}  // namespace

const LoadedExtension& loadedExtension() {
  static const LoadedExtension& loaded = []() -> LoadedExtension& {
    static LoadedExtension extension;
    desktop::uikit::registerUIKit();
    registerHostClasses(missingClass);
    extension.siblingBefore = siblingMethod();
    extension.host.writeSettings(settingsAtLoad);
    extension.events = extension.host.eventsOf([&] { load(extension); });
    return extension;
  }();
  return loaded;
}

std::vector<bridge::HookRow> rowsOf(bridge::HookKind kind) {
  std::vector<bridge::HookRow> rows;
  std::ranges::copy_if(loadedExtension().probe->rows, std::back_inserter(rows),
                       [kind](const bridge::HookRow& row) { return row.kind == kind; });
  return rows;
}

const HostMethod& hostMethodOf(const bridge::HookRow& row) {
  for (const HostMethod& method : hostMethods())
    if (std::string_view(method.className) == row.className &&
        std::string_view(method.selector) == row.selector)
      return method;
  throw std::invalid_argument(std::string(row.className) + " " + row.selector);
}

bridge::Owned<bridge::Object> makeReceiver(const bridge::HookRow& row) {
  auto receiver = victims::make(objc_getClass(row.className));
  hostCalls().clear();
  return receiver;
}

}  // namespace lumifact::host
