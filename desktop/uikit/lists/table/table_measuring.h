// SPDX-License-Identifier: MIT
//
// What a table asks about its rows before it shows any: how many there are, and how high they and
// the titles around them are.
#pragma once

#include "desktop/uikit/lists/table/table_data_source.h"
#include "desktop/uikit/lists/table/table_delegate.h"
#include "desktop/uikit/lists/table/table_geometry.h"

namespace desktop::uikit {

// Heights that are set for all rows, headers and footers, in points. Negative: the platform's.
struct TableHeights {
  CGFloat row = 44;
  CGFloat header = -1;
  CGFloat footer = -1;
};

struct TableMeasuring {
  const TableDataSource& source;
  const TableDelegate& delegate;
  const TableHeights& heights;
  bool isGrouped = false;
  bool hasHeaderView = false;
  CGFloat width = 0;  // of the table

  // Of one section after the other.
  std::vector<TableSection> sections() const;
};

}  // namespace desktop::uikit
