// SPDX-License-Identifier: MIT
//
// The kinds of values that a table page shows.
#pragma once

#include "bridge/foundation.h"
#include "lumifact/platform.h"

namespace lumifact {

enum class ValueKind { number, string, date, data, array, dictionary, unknown };

// Nil is of an unknown kind.
ValueKind kindOf(Object value);

// Whether a value has a page of its own: arrays and dictionaries have.
bool isContainer(ValueKind kind);

// The value as a row shows it on its right: texts as they are, numbers as texts, bytes as UTF-8 or
// else as their description, dates in the user's short date and medium time. Nil for containers,
// for nil and for what is of an unknown kind.
NSString displayText(Object value);

}  // namespace lumifact
