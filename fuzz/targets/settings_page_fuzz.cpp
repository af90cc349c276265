// SPDX-License-Identifier: MIT
//
// A page of settings: of one that is taken every row has what its control needs.
#include <cstdint>
#include <cstdlib>

#include "desktop/settings/page_limits.h"
#include "desktop/settings/page_reader.h"
#include "desktop/settings/preferences.h"
#include "foundation/property_lists/property_list.h"

using namespace desktop::settings;

namespace {

bool isComplete(const Row& row) {
  const bool keepsSomething = row.kind > RowKind::value;
  const bool isChosen = row.kind == RowKind::segments || row.kind == RowKind::list;
  return (!keepsSomething || (isDomain(row.place.domain) && !row.place.key.empty())) &&
         isChosen == !row.choices.empty() && row.range.least < row.range.greatest &&
         row.range.steps >= 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto list = foundation::parsePropertyList(io::ByteView({data, size}));
  if (!list) return 0;
  const auto page = parsePage(list->root);
  if (!page) return 0;
  std::size_t rows = 0;
  for (const Group& group : page->groups) {
    for (const Row& row : group.rows) {
      if (!isComplete(row)) std::abort();
      static_cast<void>(shownText(row, row.standard));
      ++rows;
    }
  }
  if (page->title.empty() || rows > pageLimits.rows) std::abort();
  return 0;
}
