// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/section_titles.h"

#include <algorithm>

#include "desktop/uikit/views/animator.h"

namespace desktop::uikit {
namespace {

using Place = UITableViewHeaderFooterView::Place;

Band keptInSight(Band header, CGFloat sightTop, CGFloat sectionBottom) {
  header.top = std::max(header.top, std::min(sightTop, sectionBottom - header.height));
  return header;
}

}  // namespace

std::map<TitlePlace, Band> titlesIn(const TableGeometry& geometry, Band sight, CGFloat sightTop,
                                    bool isGrouped) {
  std::map<TitlePlace, Band> titles;
  const auto [first, end] = geometry.sectionsIn(sight);
  for (NSInteger section = first; section < end; ++section) {
    const Band header = geometry.header(section);
    const Band footer = geometry.footer(section);
    if (header.height > 0)
      titles[{section, Place::header}] =
          isGrouped ? header : keptInSight(header, sightTop, geometry.section(section).bottom());
    if (footer.height > 0) titles[{section, Place::footer}] = footer;
  }
  return titles;
}

void SectionTitles::follow(const std::map<TitlePlace, CGRect>& wanted, Inquiry::Pass pass,
                           UIView table, const Make& make) {
  using View = Owned<UIView>;
  _shown.follow(
      wanted, pass, [](TitlePlace, const View& view) { view->removeFromSuperview(); },
      [](const View& view, CGRect frame) { view->setFrame(frame); },
      [&](TitlePlace place, CGRect frame) {
        const View view = View::retain(make(place));
        if (!view || !pass.holds()) return;
        _shown.show(place, view);
        animator().withoutAnimation([&] { view->setFrame(frame); });
        table.addSubview(view);
      });
}

void SectionTitles::removeAll() {
  for (const auto& [place, view] : _shown.takeAll()) view->removeFromSuperview();
}

}  // namespace desktop::uikit
