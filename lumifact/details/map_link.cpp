// SPDX-License-Identifier: MIT
#include "lumifact/details/map_link.h"

#include <array>
#include <string_view>

#include "model/number_text.h"

namespace lumifact {

namespace {

// The host of the web map service, chosen when building.
constexpr std::string_view webMapHost = LUMIFACT_WEB_MAP_HOST;
static_assert(!webMapHost.empty());

constexpr std::int32_t mapApplication = 1;  // the mapType of the map application's URL scheme

// What a mapViewType is called by the two services.
struct ViewName {
  std::int32_t mapViewType;
  std::string_view inApplication;
  std::string_view onWeb;
};

constexpr std::array<ViewName, 3> viewNames = {{
    {1, "", "m"},
    {2, "satellite", "k"},
    {3, "transit", "r"},
}};

const ViewName* viewNameOf(std::int32_t mapViewType) {
  for (const ViewName& row : viewNames) {
    if (row.mapViewType == mapViewType) return &row;
  }
  return nullptr;
}

std::string locationText(const model::Location& location) {
  return model::fixedText(location.latitude, 6) + "," + model::fixedText(location.longitude, 6);
}

std::string applicationLink(const std::string& coordinates, const Settings& settings) {
  std::string link = "comgooglemaps://?center=" + coordinates;
  if (settings.mapZoomLevel != 0.0) {
    link.append("&zoom=").append(model::fixedText(settings.mapZoomLevel, 2));
  }
  const ViewName* view = viewNameOf(settings.mapViewType);
  if (view != nullptr) link.append("&views=").append(view->inApplication);
  return link;
}

std::string webLink(const std::string& coordinates, const Settings& settings) {
  std::string link = "http://";
  link.append(webMapHost).append("/?q=Lumifact&ll=").append(coordinates);
  const ViewName* view = viewNameOf(settings.mapViewType);
  if (view != nullptr) link.append("&t=").append(view->onWeb);
  return link;
}

}  // namespace

std::optional<std::string> buildMapLink(const std::optional<std::string>& coordinates,
                                        const std::optional<model::Location>& location,
                                        const Settings& settings) {
  if (!coordinates && !location) return std::nullopt;
  const std::string place = coordinates ? *coordinates : locationText(*location);
  return settings.mapType == mapApplication ? applicationLink(place, settings)
                                            : webLink(place, settings);
}

}  // namespace lumifact
