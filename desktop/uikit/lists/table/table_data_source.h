// SPDX-License-Identifier: MIT
//
// What a table asks its data source, which need not answer.
#pragma once

#include "desktop/uikit/lists/index_path.h"
#include "desktop/uikit/lists/table/section_titles.h"

namespace desktop::uikit {

class TableDataSource {
 public:
  // Borrowed, as the source is.
  explicit TableDataSource(UIView table) : _table(table) {}

  NSObject object() const { return _source; }
  void setObject(NSObject source) { _source = source; }

  NSInteger sections() const;
  // No more than the table has room for.
  NSInteger rows(NSInteger section, NSInteger most) const;
  // Nil where there is none.
  NSString title(TitlePlace place) const;
  // An empty cell for a row for which the source has none.
  Owned<UITableViewCell> cell(ItemPath path) const;

 private:
  UIView _table;
  NSObject _source;
};

}  // namespace desktop::uikit
