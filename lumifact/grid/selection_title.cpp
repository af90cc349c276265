// SPDX-License-Identifier: MIT
#include "lumifact/grid/selection_title.h"

namespace lumifact {

std::uint64_t selectionSize(const std::vector<std::optional<std::int64_t>>& sizes) {
  std::uint64_t sum = 0;
  for (const auto& size : sizes) sum += static_cast<std::uint64_t>(size.value_or(0));
  return sum;
}

std::string selectionTitle(std::string_view stockTitle, std::uint64_t totalSize,
                           const std::function<std::string(std::int64_t)>& byteCountText) {
  std::string title(stockTitle);
  if (totalSize == 0) return title;
  title.append(" (").append(byteCountText(static_cast<std::int64_t>(totalSize)));
  return title.append(") ");
}

}  // namespace lumifact
