// SPDX-License-Identifier: MIT
//
// Private fields of other people's objects, by name. They may be gone in the next version of the
// host: a field that is missing, or is no longer of the kind asked for, counts as absent.
#pragma once

#include "bridge/runtime/objc.h"
#include "bridge/runtime/object.h"

namespace bridge {

// The object in a field: "_textBannerView". Borrowed; nil where object or field is absent.
Object objectField(Object object, const char* name);

// The selector in a field, or null.
SEL selectorField(Object object, const char* name);

}  // namespace bridge
