// SPDX-License-Identifier: MIT
//
// A program outside an application bundle has no identifier; the host states its own.
#include "bridge/foundation.h"
#include "desktop/faces/foundation/corrections.h"
#include "desktop/faces/foundation/foundation_options.h"
#include "desktop/faces/foundation/replacement.h"
#include "desktop/platform.h"

namespace desktop::faces {
namespace {

Stock<id(id, SEL)> stockBundleIdentifier;
id NSBundle_bundleIdentifier(id self, SEL command) {
  const std::string& stated = currentOptions().bundleIdentifier;
  if (stated.empty() || NSBundle(self) != NSBundle::mainBundle())
    return stockBundleIdentifier(self, command);
  return NSString::make(stated).get();
}

}  // namespace

void correctMainBundle() {
  replaceMethod("NSBundle", "bundleIdentifier", &NSBundle_bundleIdentifier, stockBundleIdentifier);
}

}  // namespace desktop::faces
