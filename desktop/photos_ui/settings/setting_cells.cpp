// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/settings/setting_cells.h"

#include <algorithm>

#include "desktop/photos_ui/settings/segments_cell.h"
#include "desktop/photos_ui/settings/slider_cell.h"
#include "desktop/photos_ui/settings/toggle_cell.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"

namespace desktop::photos_ui {
namespace {

using settings::RowKind;

// A new cell of a class where none waits to be used again.
UITableViewCell cellOf(UITableView table, Class cellClass, const char* identifier) {
  const NSString name = NSString::make(identifier);
  if (const auto waiting = table.dequeueCell(name)) return waiting;
  return makeWith<UITableViewCell, "initWithStyle:reuseIdentifier:">(
             cellClass, NSInteger{uikit::UITableViewCellState::value1}, name)
      .autorelease();
}

// A row without a control of its own; what leads further has an arrow.
UITableViewCell plainCell(UITableView table, const settings::Row& row, const model::Value& value) {
  const bool leadsOn = row.kind == RowKind::list && row.isEnabled;
  const bool isPale = row.kind == RowKind::unknown || !row.isEnabled;
  const UITableViewCell cell = cellOf(table, UITableViewCell::classObject(), "plain setting");
  cell.textLabel().setText(NSString::make(row.label));
  cell.textLabel().setTextColor(
      uikit::UIColorState::make(isPale ? uikit::colors::secondaryText : uikit::colors::black));
  cell.detailTextLabel().setText(NSString::make(settings::shownText(row, value)));
  cell.setAccessoryType(leadsOn ? UITableViewCell::disclosureIndicator
                                : UITableViewCell::noAccessory);
  cell.setSelectionStyle(leadsOn ? UITableViewCell::blueSelection : UITableViewCell::noSelection);
  return cell;
}

// A row with a control: which class shows it.
template <typename Cell>
UITableViewCell controlCell(UITableView table, const settings::Row& row, const model::Value& value,
                            SettingChanged changed) {
  const UITableViewCell cell = cellOf(table, Cell::classObject(), Cell::identifier);
  Cell::of(cell).show(row, value, std::move(changed));
  return cell;
}

struct ControlKind {
  RowKind kind;
  UITableViewCell (*cell)(UITableView, const settings::Row&, const model::Value&, SettingChanged);
};

constexpr ControlKind controlKinds[] = {{RowKind::segments, controlCell<SegmentsCell>},
                                        {RowKind::slider, controlCell<SliderCell>},
                                        {RowKind::toggle, controlCell<ToggleCell>}};

}  // namespace

UITableViewCell settingCell(UITableView table, const settings::Row& row, const model::Value& value,
                            SettingChanged changed) {
  const auto* const found = std::ranges::find(controlKinds, row.kind, &ControlKind::kind);
  if (found == std::end(controlKinds)) return plainCell(table, row, value);
  return found->cell(table, row, value, std::move(changed));
}

}  // namespace desktop::photos_ui
