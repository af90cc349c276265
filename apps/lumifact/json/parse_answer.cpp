// SPDX-License-Identifier: MIT
#include "apps/lumifact/json/parse_answer.h"

#include <optional>
#include <utility>

#include "apps/lumifact/json/json.h"
#include "apps/lumifact/json/json_object.h"
#include "apps/lumifact/json/media_asset_json.h"
#include "lumifact/report/data_parser.h"

namespace lumifact::tool {

namespace {

model::Result<std::string> imageAnswer(model::Value& tree) {
  model::Dictionary* properties = tree.asDictionary();
  if (properties == nullptr) return model::Error{"not an object of image properties"};
  std::optional<std::string> coordinates;
  const std::string text = DataParser::parseDataToString(*properties, coordinates);
  std::string json;
  JsonObject(json)
      .field("text", text)
      .field("table", *properties)
      .field("coordinates", coordinates);
  return json;
}

model::Result<std::string> videoAnswer(const model::Value& tree) {
  const auto asset = assetOfTree(tree);
  if (!asset) return asset.error();
  std::optional<std::string> coordinates;
  model::Dictionary unused;
  const std::string text =
      DataParser::parseAVURLAsset(*asset ? &**asset : nullptr, unused, coordinates);
  std::string json;
  JsonObject(json).field("text", text).field("coordinates", coordinates);
  return json;
}

}  // namespace

model::Result<std::string> parseAnswer(ParseKind kind, model::Value tree) {
  return kind == ParseKind::image ? imageAnswer(tree) : videoAnswer(tree);
}

model::Result<std::string> parseAnswer(ParseKind kind, std::string_view json) {
  auto tree = parseJson(json);
  if (!tree) return tree.error();
  return parseAnswer(kind, *std::move(tree));
}

std::string errorAnswer(std::string_view reason) {
  std::string json;
  JsonObject(json).field("error", reason);
  return json;
}

}  // namespace lumifact::tool
