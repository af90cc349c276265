// SPDX-License-Identifier: MIT
#include <utility>

#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/file_scan.h"
#include "apps/lumifact/json/json.h"
#include "apps/lumifact/texts/asset_texts.h"

namespace lumifact::tool {

namespace {

void appendField(std::string& json, std::string_view name, const std::optional<std::string>& text) {
  json.append(",\"").append(name).append("\":");
  if (text) {
    appendJsonString(json, *text);
  } else {
    json += "null";
  }
}

std::string jsonLine(const std::string& path, const AssetReport& report) {
  std::string json = "{\"path\":";
  appendJsonString(json, path);
  appendField(json, "header", report.header);
  appendField(json, "text", report.text);
  json += ",\"table\":";
  if (report.table) {
    appendJson(json, *report.table);
  } else {
    json += "null";
  }
  appendField(json, "coordinates", report.coordinates);
  appendField(json, "mapLink", report.mapLink);
  return json += "}\n";
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
