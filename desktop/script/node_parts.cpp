// SPDX-License-Identifier: MIT
#include "desktop/script/node_parts.h"

#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"

namespace desktop::script {
namespace {

void addText(const char* key, NSString text, Json& node) {
  if (text) node[key] = text.utf8();
}

void addFont(UIFont font, Json& node) {
  if (!font) return;
  node["font"] = {{"name", send<NSString, "fontName">(font).utf8()},
                  {"size", send<CGFloat, "pointSize">(font)}};
}

void addTextStyle(UIView view, Json& node) {
  addFont(send<UIFont, "font">(view), node);
  if (const auto color = send<UIColor, "textColor">(view))
    node["textColor"] = jsonOf(uikit::UIColorState::valueOf(color));
  node["alignment"] = send<NSInteger, "textAlignment">(view);
}

void addLabel(UIView view, Json& node) {
  addText("text", send<NSString, "text">(view), node);
  addTextStyle(view, node);
  node["adjustsFontSizeToFitWidth"] = send<bool, "adjustsFontSizeToFitWidth">(view);
  if (const CGFloat least = send<CGFloat, "minimumFontSize">(view); least != 0)
    node["minimumFontSize"] = least;
}

void addParagraph(NSAttributedString text, Json& node) {
  if (text.length() == 0) return;
  const auto style = send<NSMutableParagraphStyle, "attribute:atIndex:effectiveRange:">(
      text, paragraphStyleAttributeName(), NSUInteger{0}, static_cast<NSRange*>(nullptr));
  if (!style) return;
  node["paragraph"] = {{"spacing", send<CGFloat, "paragraphSpacing">(style)},
                       {"spacingBefore", send<CGFloat, "paragraphSpacingBefore">(style)},
                       {"firstLineHeadIndent", send<CGFloat, "firstLineHeadIndent">(style)},
                       {"headIndent", send<CGFloat, "headIndent">(style)}};
}

void addTextView(UIView view, Json& node) {
  addText("text", send<NSString, "text">(view), node);
  addTextStyle(view, node);
  node["editable"] = send<bool, "isEditable">(view);
  addParagraph(send<NSAttributedString, "attributedText">(view), node);
  const NSRange selected = send<NSRange, "selectedRange">(view);
  if (send<UITextRange, "selectedTextRange">(view))
    node["selectedRange"] = {selected.location, selected.length};
}

void addButton(UIView view, Json& node) {
  addText("text", send<NSString, "currentTitle">(view), node);
}

void addCell(UIView view, Json& node) {
  addText("text", uikit::UITableViewCellState::of(view.get()).text(), node);
  addText("detail", uikit::UITableViewCellState::of(view.get()).detailText(), node);
  node["accessory"] = send<NSInteger, "accessoryType">(view);
  node["selectionStyle"] = send<NSInteger, "selectionStyle">(view);
}

struct Row {
  const char* className;
  void (*add)(UIView view, Json& node);
};
constexpr Row rows[] = {
    {"UILabel", &addLabel},
    {"UITextView", &addTextView},
    {"UIButton", &addButton},
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
