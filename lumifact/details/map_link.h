// SPDX-License-Identifier: MIT
//
// The link that opens an item's place in a map service.
#pragma once

#include <optional>
#include <string>

#include "lumifact/state/settings.h"
#include "model/geometry.h"

namespace lumifact {

// The map link of the report's coordinates, used exactly as given (an empty text counts as
// given), else of the asset's location with six decimals; none without either. The service, the
// zoom and the kind of map are those of mapType, mapZoomLevel and mapViewType.
std::optional<std::string> buildMapLink(const std::optional<std::string>& coordinates,
                                        const std::optional<model::Location>& location,
                                        const Settings& settings);

}  // namespace lumifact
