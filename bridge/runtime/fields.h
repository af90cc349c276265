// SPDX-License-Identifier: MIT
//
// Private fields of objects, by name. Other people's may be gone in the next version of the host: a
// field that is missing, or is no longer of the kind asked for, counts as absent.
#pragma once

#include "bridge/runtime/objc.h"
#include "bridge/runtime/object.h"

namespace bridge {

// The object in a field: "_textBannerView". Borrowed; nil where object or field is absent.
Object objectField(Object object, const char* name);

// The selector in a field, or null.
SEL selectorField(Object object, const char* name);

// Puts an object into a field and retains it in place of what was there; nil empties the field,
// which is what the destructor of a class does with the fields of its own. An absent field keeps
// nothing.
void setObjectField(Object object, const char* name, Object value);

// The same for an object that somebody else keeps alive: nothing is retained or released.
void setBorrowedField(Object object, const char* name, Object value);

void setSelectorField(Object object, const char* name, SEL value);

}  // namespace bridge
