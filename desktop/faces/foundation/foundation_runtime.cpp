// SPDX-License-Identifier: MIT
#include "desktop/faces/foundation/foundation_runtime.h"

#include "bridge/runtime.h"
#include "desktop/faces/foundation/corrections.h"
#include "desktop/platform.h"

namespace desktop::faces {
namespace {

bool replaceMethods() {
  const AutoreleasePool pool;
  correctByteCounts();
  correctCollections();
  correctDates();
  correctFiles();
  correctLinks();
  correctNumbers();
  correctStrings();
  correctMainBundle();
  return true;
}

}  // namespace

void correctFoundation(const FoundationOptions& options) {
  currentOptions() = options;
  static const bool replaced = replaceMethods();
  static_cast<void>(replaced);
}

}  // namespace desktop::faces
