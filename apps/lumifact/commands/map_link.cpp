// SPDX-License-Identifier: MIT
#include "lumifact/details/map_link.h"

#include <utility>

#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/file_scan.h"
#include "apps/lumifact/texts/asset_texts.h"

namespace lumifact::tool {

namespace {

void printLink(const std::string& link, Console& console) {
  const bool isForTerminal = console.resultsAreOnTerminal();
  console.write((isForTerminal ? terminalSafe(link, Keep::nothing) : link) + "\n");
}

model::Result<std::string> linkOfFile(const std::string& path, const Environment& environment) {
  auto facts = media::facts::readAssetFacts(path, environment.root);
  if (!facts) return facts.error();
  const AssetReport report = reportOf(*std::move(facts), environment);
  if (!report.mapLink) return model::Error{"no location"};
  return *report.mapLink;
}

}  // namespace

void runMapLink(const Options& options, Console& console) {
  if (options.coordinates || options.location) {
    const auto link = buildMapLink(options.coordinates, options.location, settingsOf(options));
    return printLink(*link, console);
  }
  const Environment environment = environmentOf(options, Reader::program);
  for (const std::string& path : options.files) {
    const auto link = linkOfFile(path, environment);
    if (link) {
      printLink(*link, console);
    } else {
      console.fail(path, link.error().reason);
    }
  }
}

}  // namespace lumifact::tool
