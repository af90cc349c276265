// SPDX-License-Identifier: MIT
#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/file_scan.h"
#include "apps/lumifact/json/json.h"
#include "apps/lumifact/json/media_asset_json.h"
#include "apps/lumifact/texts/environment.h"
#include "media/facts/asset_facts.h"

namespace lumifact::tool {

void runProperties(const Options& options, Console& console) {
  const Environment environment = environmentOf(options, Reader::program);
  const auto work = [&](const std::string& path) -> model::Result<std::string> {
    const auto facts = media::facts::readAssetFacts(path, environment.root);
    if (!facts) return facts.error();
    std::string json = "{\"path\":";
    appendJsonString(json, path);
    json += facts->properties ? ",\"properties\":" : ",\"asset\":";
    appendJson(json, facts->properties ? *facts->properties
                                       : treeOfAsset(facts->asset.value_or(model::MediaAsset())));
    return json += "}\n";
  };
  scanFiles(options, console, {.work = work});
}

}  // namespace lumifact::tool
