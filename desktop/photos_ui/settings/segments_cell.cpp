// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/settings/segments_cell.h"

#include "bridge/class_builder.h"
#include "bridge/uikit.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/controls/ui_segmented_control.h"

namespace desktop::photos_ui {
namespace {

constexpr CGFloat segmentsMargin = 16;  // points, beside the segments
constexpr CGFloat segmentsHeight = 29;

NSInteger placeOf(const settings::Choice* choice, const settings::Row& row) {
  return choice ? choice - row.choices.data() : uikit::UISegmentedControl::noSegment;
}

}  // namespace

Class SegmentsCell::classObject() {
  static const Class made =
      ClassBuilder<SegmentsCell>("SettingsSegmentsCell")
          .method<"initWithStyle:reuseIdentifier:", &SegmentsCell::initWithStyle>()
          .method<"layoutSubviews", &SegmentsCell::layoutSubviews>()
          .method<"selected:", &SegmentsCell::selected>()
          .build();
  return made;
}

UITableViewCell SegmentsCell::initWithStyle(NSInteger style, NSString reuseIdentifier) {
  const auto made =
      super<UITableViewCell, "initWithStyle:reuseIdentifier:">(style, reuseIdentifier);
  if (!made) return {};
  _segments = uikit::UISegmentedControl::make();
  uikit::UISegmentedControl::of(_segments.get())
      .addTarget(self(), selector<"selected:">(), uikit::UIControlState::valueChanged);
  contentView().addSubview(_segments);
  setSelectionStyle(noSelection);
  return made;
}

void SegmentsCell::show(const settings::Row& row, const model::Value& value,
                        SettingChanged changed) {
  _changed = std::move(changed);
  _values.clear();
  std::vector<std::string> titles;
  for (const auto& [title, each] : row.choices) {
    titles.push_back(title);
    _values.push_back(each);
  }
  auto& shown = uikit::UISegmentedControl::of(_segments.get());
  shown.setAccessibilityLabel(NSString::make(row.label));
  shown.setTitles(titles);
  shown.select(placeOf(settings::choiceOf(row, value), row));
  _segments->setEnabled(row.isEnabled);
}

void SegmentsCell::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize room = contentView().bounds().size;
  _segments->setFrame({{segmentsMargin, (room.height - segmentsHeight) / 2},
                       {std::max(0.0, room.width - 2 * segmentsMargin), segmentsHeight}});
}

void SegmentsCell::selected(NSObject) {
  const NSInteger segment = uikit::UISegmentedControl::of(_segments.get()).selected();
  if (segment < 0 || static_cast<std::size_t>(segment) >= _values.size()) return;
  const auto changed = _changed;
  const model::Value value = _values[static_cast<std::size_t>(segment)];
  if (changed) changed(value);
}

}  // namespace desktop::photos_ui
