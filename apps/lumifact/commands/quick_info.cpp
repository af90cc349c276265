// SPDX-License-Identifier: MIT
#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/file_scan.h"
#include "apps/lumifact/texts/asset_texts.h"

namespace lumifact::tool {

void runQuickInfo(const Options& options, Console& console) {
  const Environment environment = environmentOf(options, Reader::person);
  const QuickInfoForm form = options.compact ? QuickInfoForm::compact : QuickInfoForm::labelled;
  const auto work = [&](const std::string& path) -> model::Result<std::string> {
    const auto facts = media::facts::readAssetFacts(path, environment.root);
    if (!facts) return facts.error();
    std::string text = asLines(quickInfoOf(*facts, form, environment));
    return console.resultsAreOnTerminal() ? terminalSafe(text, Keep::lineBreaks) : text;
  };
  scanFiles(options, console, {.work = work, .separator = "\n"});
}

}  // namespace lumifact::tool
