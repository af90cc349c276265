// SPDX-License-Identifier: MIT
#include "desktop/foundation_runtime/foundation_runtime.h"

#include "bridge/runtime.h"
#include "desktop/foundation_runtime/corrections.h"

namespace desktop::foundation {
namespace {

FoundationOptions& keptOptions() {
  static auto& kept = *new FoundationOptions;
  return kept;
}

bool replaceMethods() {
  const bridge::AutoreleasePool pool;
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

const FoundationOptions& currentOptions() {
  return keptOptions();
}

void correctFoundation(const FoundationOptions& options) {
  keptOptions() = options;
  static const bool replaced = replaceMethods();
  static_cast<void>(replaced);
}

}  // namespace desktop::foundation
