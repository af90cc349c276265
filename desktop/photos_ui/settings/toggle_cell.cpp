// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/settings/toggle_cell.h"

#include "bridge/class_builder.h"
#include "bridge/uikit.h"
#include "desktop/uikit/controls/ui_switch.h"
#include "model/conversions.h"

namespace desktop::photos_ui {

Class ToggleCell::classObject() {
  static const Class made =
      ClassBuilder<ToggleCell>("SettingsToggleCell")
          .method<"initWithStyle:reuseIdentifier:", &ToggleCell::initWithStyle>()
          .method<"toggled:", &ToggleCell::toggled>()
          .build();
  return made;
}

UITableViewCell ToggleCell::initWithStyle(NSInteger style, NSString reuseIdentifier) {
  const auto made =
      super<UITableViewCell, "initWithStyle:reuseIdentifier:">(style, reuseIdentifier);
  if (!made) return {};
  _switch = uikit::UISwitch::make();
  uikit::UISwitch::of(_switch.get())
      .addTarget(self(), selector<"toggled:">(), uikit::UIControlState::valueChanged);
  setAccessoryView(_switch.get());
  setSelectionStyle(noSelection);
  return made;
}

// The switch goes by the row's label, as its own picture says nothing.
void ToggleCell::show(const settings::Row& row, const model::Value& value, SettingChanged changed) {
  _changed = std::move(changed);
  textLabel().setText(NSString::make(row.label));
  auto& shown = uikit::UISwitch::of(_switch.get());
  shown.setAccessibilityLabel(NSString::make(row.label));
  shown.setOn(model::boolValue(value), false);
  _switch->setEnabled(row.isEnabled);
}

void ToggleCell::toggled(NSObject) {
  const auto changed = _changed;
  if (changed) changed(uikit::UISwitch::of(_switch.get()).isOn());
}

}  // namespace desktop::photos_ui
