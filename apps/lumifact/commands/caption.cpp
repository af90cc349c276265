// SPDX-License-Identifier: MIT
#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/file_scan.h"
#include "apps/lumifact/texts/asset_texts.h"

namespace lumifact::tool {

void runCaption(const Options& options, Console& console) {
  const Environment environment = environmentOf(options, Reader::person);
  const std::int32_t display = options.display.value_or(environment.settings.thumbnailInfoDisplay);
  const auto work = [&](const std::string& path) -> model::Result<std::string> {
    const auto facts = media::facts::readAssetFacts(path, environment.root);
    if (!facts) return facts.error();
    return captionOf(*facts, display, environment) + "\n";
  };
  scanFiles(options, console, {.work = work});
}

}  // namespace lumifact::tool
