// SPDX-License-Identifier: MIT
//
// A table on the screen, read row by row.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "bridge/uikit.h"

namespace lumifact {

// The table of a page.
bridge::UITableView tableOf(bridge::UIViewController page);

// The cells in sight, from top to bottom.
std::vector<bridge::UITableViewCell> cellsOf(bridge::UITableView table);
// The cell of a row in sight; nil where it is not.
bridge::UITableViewCell cellAt(bridge::UITableView table, NSInteger row);

// A cell as a line without its end: "title = detail", "title >" where it opens a page, and "title"
// where there is neither.
std::string lineOf(bridge::UITableViewCell cell);
// The lines of the rows in sight, each with a line break.
std::string shownRows(bridge::UITableView table);

// Touches the row in sight with this title.
void tapRow(bridge::UITableView table, std::string_view title);

}  // namespace lumifact
