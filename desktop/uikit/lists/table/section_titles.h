// SPDX-License-Identifier: MIT
//
// The headers and footers of a table that are in sight.
#pragma once

#include <compare>
#include <functional>
#include <map>

#include "bridge/uikit/ui_lists.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/table/table_geometry.h"
#include "desktop/uikit/lists/ui_table_view_header_footer_view.h"
#include "desktop/uikit/lists/views_in_sight.h"

namespace desktop::uikit {

// A header or footer: that of which section.
struct TitlePlace {
  NSInteger section = 0;
  UITableViewHeaderFooterView::Place place = UITableViewHeaderFooterView::Place::header;
  bool isHeader() const { return place == UITableViewHeaderFooterView::Place::header; }
  bool operator==(const TitlePlace&) const = default;
  // From top to bottom.
  constexpr std::strong_ordering operator<=>(const TitlePlace& other) const {
    const auto bySection = section <=> other.section;
    return std::is_neq(bySection) ? bySection : place <=> other.place;
  }
};

// Where the titles in sight stand; those without height are left out. A plain table's header stays
// at `sightTop`, below what covers the table there, as long as its section does.
std::map<TitlePlace, Band> titlesIn(const TableGeometry& geometry, Band sight, CGFloat sightTop,
                                    bool isGrouped);

class SectionTitles {
 public:
  // Nil where the place has no title.
  using Make = std::function<UIView(TitlePlace place)>;

  // Shows the titles of these places in these frames in the table, and no others.
  void follow(const std::map<TitlePlace, CGRect>& wanted, Inquiry::Pass pass, UIView table,
              const Make& make);
  void removeAll();

 private:
  ViewsInSight<TitlePlace, Owned<UIView>> _shown;
};

}  // namespace desktop::uikit
