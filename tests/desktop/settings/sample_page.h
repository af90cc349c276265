// SPDX-License-Identifier: MIT
//
// Pages of settings as property lists, for tests that change one thing of them.
#pragma once

#include <string>

#include "foundation/property_lists/property_list.h"
#include "model/value.h"

namespace desktop::settings {

inline model::Dictionary switchCell() {
  return {{"cell", "PSSwitchCell"},   {"label", "Colours"},
          {"key", "areColoursShown"}, {"defaults", "com.example.sample"},
          {"default", true},          {"PostNotification", "com.example.sample/changed"}};
}

inline model::Dictionary listCell() {
  return {{"cell", "PSLinkListCell"},
          {"label", "Size"},
          {"key", "size"},
          {"defaults", "com.example.sample"},
          {"default", 2},
          {"validTitles", model::Array{"Small", "Large"}},
          {"validValues", model::Array{1, 2}}};
}

inline model::Dictionary sliderCell() {
  return {{"cell", "PSSliderCell"},
          {"label", "Speed"},
          {"key", "speed"},
          {"defaults", "com.example.sample"},
          {"default", 0.25},
          {"min", 0},
          {"max", 2.5}};
}

// A page of that name with these cells.
inline model::Value pageOf(const std::string& name, const model::Array& items) {
  return model::Dictionary{{"entry", model::Dictionary{{"cell", "PSLinkCell"}, {"label", name}}},
                           {"title", name + " Settings"},
                           {"items", items}};
}

inline std::string xmlOf(const model::Value& list) {
  return *foundation::serializePropertyList(list, foundation::PropertyListFormat::xml);
}

}  // namespace desktop::settings
