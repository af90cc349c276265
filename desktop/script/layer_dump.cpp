// SPDX-License-Identifier: MIT
#include "desktop/script/node_parts.h"
#include "desktop/uikit/graphics/ui_bezier_path.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/ca_gradient_layer.h"
#include "desktop/uikit/views/ca_layer.h"

namespace desktop::script {
namespace {

void addColor(Json& json, const char* key, const Owned<Object>& color) {
  if (color) json[key] = jsonOf(uikit::UIColorState::valueOf(color.get()));
}

Json styleOf(const uikit::CALayerState::Style& style) {
  Json json = Json::object();
  if (style.cornerRadius != 0) json["cornerRadius"] = style.cornerRadius;
  if (style.borderWidth != 0) json["borderWidth"] = style.borderWidth;
  addColor(json, "borderColor", style.borderColor);
  if (style.masksToBounds) json["masksToBounds"] = true;
  addColor(json, "shadowColor", style.shadowColor);
  if (style.shadowOpacity != 0) {
    json["shadowOpacity"] = style.shadowOpacity;
    json["shadowOffset"] = jsonOf(style.shadowOffset);
    json["shadowRadius"] = style.shadowRadius;
  }
  if (const uikit::Path* path = uikit::UIBezierPathState::valueOf(style.shadowPath.get()))
    json["shadowPath"] = jsonOf(path->bounds());
  return json;
}

Json sublayerOf(CALayer layer);

void addSublayers(CALayer layer, Json& json) {
  for (const auto& sublayer : uikit::CALayerState::of(layer).sublayers())
    json["sublayers"].push_back(sublayerOf(sublayer.get()));
}

Json sublayerOf(CALayer layer) {
  const uikit::CALayerState& state = uikit::CALayerState::of(layer);
  Json json = {{"class", classNameOf(layer)}, {"frame", jsonOf(state.frame())}};
  json.update(styleOf(state.style()));
  if (isKindOf(layer, uikit::CAGradientLayerState::classObject())) {
    json["colors"] = Json::array();
    for (const uikit::Color color : uikit::CAGradientLayerState::of(layer).colors())
      json["colors"].push_back(jsonOf(color));
  }
  addSublayers(layer, json);
  return json;
}

}  // namespace

void addLayer(CALayer layer, Json& node) {
  Json json = styleOf(uikit::CALayerState::of(layer).style());
  addSublayers(layer, json);
  if (!json.empty()) node["layer"] = std::move(json);
}

}  // namespace desktop::script
