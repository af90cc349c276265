// SPDX-License-Identifier: MIT
#include "desktop/script/node_parts.h"

#include "desktop/uikit/controls/ui_segmented_control.h"
#include "desktop/uikit/controls/ui_slider.h"
#include "desktop/uikit/controls/ui_switch.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"

namespace desktop::script {
namespace {

void addText(const char* key, NSString text, Json& node) {
  if (text) node[key] = text.utf8();
}

void addFont(UIFont font, Json& node) {
  if (!font) return;
  node["font"] = {{"name", font.fontName().utf8()}, {"size", font.pointSize()}};
}

void addTextStyle(UIView view, Json& node) {
  addFont(UILabel(view.get()).font(), node);
  if (const auto color = UILabel(view.get()).textColor())
    node["textColor"] = jsonOf(uikit::UIColorState::valueOf(color));
  node["alignment"] = UILabel(view.get()).textAlignment();
}

void addLabel(UIView view, Json& node) {
  addText("text", UILabel(view.get()).text(), node);
  addTextStyle(view, node);
  node["adjustsFontSizeToFitWidth"] = UILabel(view.get()).adjustsFontSizeToFitWidth();
  if (const CGFloat least = UILabel(view.get()).minimumFontSize(); least != 0)
    node["minimumFontSize"] = least;
}

void addParagraph(NSAttributedString text, Json& node) {
  if (text.length() == 0) return;
  const NSParagraphStyle style(text.attribute(paragraphStyleAttributeName(), 0, nullptr).get());
  if (!style) return;
  node["paragraph"] = {{"spacing", style.paragraphSpacing()},
                       {"spacingBefore", style.paragraphSpacingBefore()},
                       {"firstLineHeadIndent", style.firstLineHeadIndent()},
                       {"headIndent", style.headIndent()}};
}

void addTextView(UIView view, Json& node) {
  addText("text", UILabel(view.get()).text(), node);
  addTextStyle(view, node);
  node["editable"] = UITextView(view.get()).isEditable();
  addParagraph(UITextView(view.get()).attributedText(), node);
  const NSRange selected = UITextView(view.get()).selectedRange();
  if (UITextView(view.get()).selectedTextRange())
    node["selectedRange"] = {selected.location, selected.length};
}

void addButton(UIView view, Json& node) {
  addText("text", UIButton(view.get()).currentTitle(), node);
}

// What a control with a value is called, and whether it can be used.
void addControl(UIView view, Json& node) {
  addText("name", uikit::UIControlState::of(view).accessibilityLabel(), node);
  node["enabled"] = UIControl(view.get()).isEnabled();
}

void addSwitch(UIView view, Json& node) {
  addControl(view, node);
  node["on"] = uikit::UISwitch::of(view).isOn();
}

void addSlider(UIView view, Json& node) {
  addControl(view, node);
  node["value"] = uikit::UISlider::of(view).value();
}

void addSegments(UIView view, Json& node) {
  addControl(view, node);
  node["selected"] = uikit::UISegmentedControl::of(view).selected();
}

void addCell(UIView view, Json& node) {
  addText("text", uikit::UITableViewCellState::of(view.get()).text(), node);
  addText("detail", uikit::UITableViewCellState::of(view.get()).detailText(), node);
  node["accessory"] = UITableViewCell(view.get()).accessoryType();
  node["selectionStyle"] = UITableViewCell(view.get()).selectionStyle();
}

struct Row {
  const char* className;
  void (*add)(UIView view, Json& node);
};
constexpr Row rows[] = {
    {"UILabel", &addLabel},        {"UITextView", &addTextView},
    {"UIButton", &addButton},      {"UISwitch", &addSwitch},
    {"UISlider", &addSlider},      {"UISegmentedControl", &addSegments},
    {"UITableViewCell", &addCell},
};

}  // namespace

bool isA(Object object, const char* className) {
  return isKindOf(object, objc_getClass(className));
}

std::string classNameOf(Object object) {
  return object ? class_getName(object_getClass(object.get())) : "";
}

void addClassParts(UIView view, Json& node) {
  for (const Row& row : rows)
    if (isA(view, row.className)) row.add(view, node);
}

}  // namespace desktop::script
