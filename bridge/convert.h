// SPDX-License-Identifier: MIT
//
// Platform objects as the project's value tree, and back.
#pragma once

#include "bridge/foundation/ns_collections.h"
#include "model/value.h"

namespace bridge {

// The object with all that is in it. Nil and the null object become null, numbers keep apart what
// was made from a boolean, an integer and a real (a single-precision one is the double of its own
// shortest decimal, an integer beyond 63 bits a real), keys that are no strings and objects of any
// other class become their descriptions. What is nested deeper than model::maximumNesting is null.
model::Value toValue(Object object);

// The tree as platform objects: booleans, integers and reals as numbers, null as the null object.
Owned<Object> toObject(const model::Value& value);

// Brings a dictionary that reads as `before` to `after` by writing only what differs, so that
// everything else stays the platform's own object. A nested dictionary in which an entry differs
// is replaced by a copy with those entries changed; deeper differences replace the whole value.
void writeChanges(NSMutableDictionary target, const model::Dictionary& before,
                  const model::Dictionary& after);

}  // namespace bridge
