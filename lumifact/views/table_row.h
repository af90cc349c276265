// SPDX-License-Identifier: MIT
//
// What a table page shows in a row of its data.
#pragma once

#include "lumifact/platform.h"
#include "lumifact/views/sorted_keys.h"
#include "lumifact/views/value_kind.h"

namespace lumifact {

// One row. All three may be nil; borrowed, as long as the page's data and the autorelease pool
// last.
struct TableRow {
  NSString title;
  NSString detail;
  Object value;  // the item or entry that the row stands for
};

// How many rows the data has: one for a single value, one for each item or entry of a container,
// none for nil and for what is of an unknown kind.
NSUInteger rowCount(Object data);

// The row of an item of an array, of an entry of a dictionary (in the order of `keys`, the first
// eight characters of a file summary record's key cut away), or of a single value: the page's own
// title, and nothing beside it. Empty where the data is of an unknown kind.
// REQUIRES: 0 <= index < rowCount(data).
TableRow tableRow(Object data, SortedKeys& keys, NSInteger index, NSString pageTitle);

// A row as text for sharing: "title = value", the value by its own description.
NSString sharedText(const TableRow& row);

}  // namespace lumifact
