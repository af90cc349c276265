// SPDX-License-Identifier: MIT
#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/file_scan.h"
#include "apps/lumifact/json/json_object.h"
#include "apps/lumifact/json/media_asset_json.h"
#include "apps/lumifact/texts/environment.h"
#include "media/facts/asset_facts.h"

namespace lumifact::tool {

namespace {

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

}  // namespace

void runProperties(const Options& options, Console& console) {
  const Environment environment = environmentOf(options, Reader::program);
  const auto work = [&](const std::string& path) -> model::Result<std::string> {
    const auto facts = media::facts::readAssetFacts(path, environment.root);
    if (!facts) return facts.error();
    return jsonLine(path, *facts);
  };
  scanFiles(options, console, {.work = work});
}

}  // namespace lumifact::tool
