// SPDX-License-Identifier: MIT
#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/chosen_files.h"
#include "apps/lumifact/files/file_scan.h"
#include "apps/lumifact/json/json_object.h"
#include "apps/lumifact/json/media_asset_json.h"
#include "apps/lumifact/texts/environment.h"
#include "media/facts/asset_facts.h"

namespace lumifact::tool {

namespace {

constexpr const Option* takenOptions[] = {&option::recursive, &option::filesFrom, &option::null,
                                          &option::jobs, &option::root};

std::string jsonLine(const std::string& path, const media::facts::AssetFacts& facts) {
  std::string line;
  if (facts.properties) {
    JsonObject(line).field("path", path).field("properties", *facts.properties);
  } else {
    const model::Dictionary asset = treeOfAsset(facts.asset.value_or(model::MediaAsset()));
    JsonObject(line).field("path", path).field("asset", asset);
  }
  return line += '\n';
}

void run(const Options& options, Console& console) {
  const Environment environment = environmentOf(options, Reader::program);
  const auto work = [&](const std::string& path) -> model::Result<FileText> {
    const auto facts = media::facts::readAssetFacts(path, environment.root);
    if (!facts) return facts.error();
    return FileText{jsonLine(path, *facts), facts->shortfall};
  };
  scanFiles(options, console, {.work = work});
}

}  // namespace

constinit const Command propertiesCommand{
    .name = "properties",
    .summary = "the metadata as it was read, as JSON",
    .usage = "[OPTIONS] FILE...",
    .description =
        "Prints the metadata of each file as it was read, before any wording: one JSON object a "
        "line, with path (as given) and properties, or asset for a video. That inner object is "
        "what 'lumifact parse' reads.\n"
        "\n"
        "Integers and reals are told apart (72 and 72.0); bytes are {\"$data\": base64}, dates "
        "{\"$date\": ISO 8601 in UTC}, and reals that JSON lacks {\"$real\": \"nan\"}. A "
        "dictionary "
        "that could be taken for one of these is {\"$dictionary\": {...}}. Bytes of a path that "
        "are no UTF-8 become U+FFFD.",
    .options = takenOptions,
    .check = checkFiles,
    .run = run};

}  // namespace lumifact::tool
