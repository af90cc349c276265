// SPDX-License-Identifier: MIT
//
// What shows a row of a settings page, by the kind of row: a label with a text beside it, or a
// control that a finger changes.
#pragma once

#include "bridge/uikit.h"
#include "desktop/photos_ui/settings/setting_changed.h"
#include "desktop/platform.h"
#include "desktop/settings/page.h"

namespace desktop::photos_ui {

// A cell of the table that shows the row and its value; autoreleased.
UITableViewCell settingCell(UITableView table, const settings::Row& row, const model::Value& value,
                            SettingChanged changed);

}  // namespace desktop::photos_ui
