// SPDX-License-Identifier: MIT
#include <utility>

#include "apps/lumifact/command_line/option_store.h"
#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/chosen_files.h"
#include "apps/lumifact/files/file_scan.h"
#include "apps/lumifact/json/json_object.h"
#include "apps/lumifact/texts/asset_texts.h"
#include "foundation/terminal_text.h"

namespace lumifact::tool {

namespace {

constexpr Option jsonOption{
    .name = "json",
    .help =
        "print one JSON object a line: path (as given), header, text, table (null for a "
        "video), coordinates, mapLink",
    .store = flag<&Options::json>};

constexpr const Option* takenOptions[] = {&jsonOption,      &option::recursive, &option::filesFrom,
                                          &option::null,    &option::jobs,      &option::settings,
                                          &option::mapType, &option::mapZoom,   &option::mapView,
                                          &option::locale,  &option::timeZone,  &option::root};

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
  if (isForTerminal) facts.path = terminalSafe(facts.path, foundation::Keep::nothing);
  const AssetReport report = reportOf(std::move(facts), environment);
  std::string text = asLines(report.header + report.text);
  return isForTerminal ? terminalSafe(text, foundation::Keep::lineBreaks) : text;
}

void run(const Options& options, Console& console) {
  const Environment environment =
      environmentOf(options, options.json ? Reader::program : Reader::person);
  const auto work = [&](const std::string& path) -> model::Result<FileText> {
    auto facts = media::facts::readAssetFacts(path, environment.root);
    if (!facts) return facts.error();
    std::string shortfall = facts->shortfall;
    if (options.json)
      return FileText{jsonLine(path, reportOf(*std::move(facts), environment)), shortfall};
    return FileText{message(*std::move(facts), environment, console.resultsAreOnTerminal()),
                    shortfall};
  };
  scanFiles(options, console, {.work = work, .separator = options.json ? "" : "\n"});
}

}  // namespace

constinit const Command reportCommand{
    .name = "report",
    .summary = "the full metadata report of each photo or video",
    .usage = "[OPTIONS] FILE...",
    .description =
        "Prints the report of each photo and video: the file's path, date and size, then every "
        "property that its metadata holds, worded for reading. An empty line stands between two "
        "files.\n"
        "\n"
        "Map links follow the settings mapType, mapZoomLevel and mapViewType. With --json the "
        "texts are those of en_US unless --locale says otherwise, and bytes of a path that are no "
        "UTF-8 become U+FFFD.",
    .options = takenOptions,
    .check = checkFiles,
    .run = run};

}  // namespace lumifact::tool
