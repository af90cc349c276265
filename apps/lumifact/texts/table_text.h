// SPDX-License-Identifier: MIT
//
// The report table as an indented tree, with the titles and values that the table presenter shows.
#pragma once

#include <string>

#include "foundation/locale.h"
#include "model/key_order.h"
#include "model/value.h"

namespace lumifact::tool {

// A row a line, "title = value"; what a container holds follows, two blanks deeper. Elements of
// arrays have no title and stand behind "-". Dates are in the short style.
std::string tableText(const model::Dictionary& summaryRecord, const model::Dictionary& table,
                      const model::KeyComparison& keyOrder, const foundation::Locale& dates);

}  // namespace lumifact::tool
