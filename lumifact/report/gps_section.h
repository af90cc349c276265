// SPDX-License-Identifier: MIT
//
// The "{GPS}" section of the report.
#pragma once

#include <optional>
#include <string>

#include "model/key_order.h"
#include "model/value.h"

namespace lumifact {

// Appends the section, its values worded but left as they are in the dictionary. Returns
// "latitude,longitude" where the section holds both with their references.
std::optional<std::string> appendGpsSection(std::string& text, const model::Dictionary& section,
                                            const model::KeyComparison& keyOrder);

}  // namespace lumifact
