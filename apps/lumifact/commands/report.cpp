// SPDX-License-Identifier: MIT
#include <utility>

#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/file_scan.h"
#include "apps/lumifact/json/json_object.h"
#include "apps/lumifact/texts/asset_texts.h"

namespace lumifact::tool {

namespace {

std::string jsonLine(const std::string& path, const AssetReport& report) {
  std::string line;
  JsonObject(line)
      .field("path", path)
      .field("header", report.header)
      .field("text", report.text)
      .field("table", report.table)
      .field("coordinates", report.coordinates)
      .field("mapLink", report.mapLink);
  return line += '\n';
}

// As the text presenter shows it: the header followed directly by the report.
std::string message(media::facts::AssetFacts facts, const Environment& environment,
                    bool isForTerminal) {
  if (isForTerminal) facts.path = terminalSafe(facts.path, Keep::nothing);
  const AssetReport report = reportOf(std::move(facts), environment);
  std::string text = asLines(report.header + report.text);
  return isForTerminal ? terminalSafe(text, Keep::lineBreaks) : text;
}

}  // namespace

void runReport(const Options& options, Console& console) {
  const Environment environment =
      environmentOf(options, options.json ? Reader::program : Reader::person);
  const auto work = [&](const std::string& path) -> model::Result<std::string> {
    auto facts = media::facts::readAssetFacts(path, environment.root);
    if (!facts) return facts.error();
    if (options.json) return jsonLine(path, reportOf(*std::move(facts), environment));
    return message(*std::move(facts), environment, console.resultsAreOnTerminal());
  };
  scanFiles(options, console, {.work = work, .separator = options.json ? "" : "\n"});
}

}  // namespace lumifact::tool
