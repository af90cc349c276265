// SPDX-License-Identifier: MIT
#include "lumifact/details/map_link.h"

#include <utility>

#include "apps/lumifact/command_line/option_store.h"
#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/chosen_files.h"
#include "apps/lumifact/files/file_runner.h"
#include "apps/lumifact/terminal/console.h"
#include "apps/lumifact/texts/asset_texts.h"
#include "foundation/terminal_text.h"

namespace lumifact::tool {

namespace {

constexpr Option coordinatesOption{.name = "coordinates",
                                   .values = "LAT,LON",
                                   .help = "link to these coordinates, exactly as they are written",
                                   .store = value<&Options::coordinates>};

constexpr Option locationOption{.name = "location",
                                .values = "LAT LON",
                                .help =
                                    "link to this place, in degrees, north and east positive; "
                                    "--coordinates come first",
                                .store = value<&Options::location>};

constexpr const Option* takenOptions[] = {&coordinatesOption, &locationOption,  &option::settings,
                                          &option::mapType,   &option::mapZoom, &option::mapView,
                                          &option::root};

bool namesPlace(const Options& options) {
  return options.coordinates || options.location;
}

void printLink(const std::string& link, Console& console) {
  const bool isForTerminal = console.resultsAreOnTerminal();
  console.write((isForTerminal ? terminalSafe(link, foundation::Keep::nothing) : link) + "\n");
}

model::Result<FileText> linkOfFile(const std::string& path, const Environment& environment) {
  auto facts = media::facts::readAssetFacts(path, environment.root);
  if (!facts) return facts.error();
  std::string shortfall = facts->shortfall;
  const AssetReport report = reportOf(*std::move(facts), environment);
  if (!report.mapLink) return model::Error{"no location"};
  return FileText{*report.mapLink, std::move(shortfall)};
}

std::optional<model::Error> check(const Options& options) {
  if (!namesPlace(options)) return checkOneFile(options);
  if (options.words.empty()) return std::nullopt;
  return model::Error{"takes FILE or a place, not both"};
}

void run(const Options& options, Console& console) {
  if (namesPlace(options)) {
    const auto link = buildMapLink(options.coordinates, options.location, settingsOf(options));
    return printLink(*link, console);
  }
  const Environment environment = environmentOf(options, Reader::program);
  const std::string& path = options.words.front();
  const auto link = linkOfFile(path, environment);
  if (!link) return console.fail(path, link.error().reason);
  printLink(link->text, console);
  if (!link->shortfall.empty()) console.note(path, link->shortfall);
}

}  // namespace

constinit const Command mapLinkCommand{
    .name = "map-link",
    .summary = "the link that opens a file's place in a map service",
    .usage =
        "[OPTIONS] FILE\n"
        "[OPTIONS] --coordinates LAT,LON\n"
        "[OPTIONS] --location LAT LON",
    .description =
        "Prints the link that opens the place of a photo or video in a map service, or "
        "the one for a given place. A file without a location is an error.",
    .examples = "lumifact map-link --map-type 1 --map-zoom 12 --location -33.8568 151.2153",
    .options = takenOptions,
    .check = check,
    .run = run};

}  // namespace lumifact::tool
