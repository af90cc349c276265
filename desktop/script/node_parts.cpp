// SPDX-License-Identifier: MIT
#include "desktop/script/node_parts.h"

#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"

namespace desktop::script {
namespace {

using bridge::send;

void addText(const char* key, bridge::NSString text, Json& node) {
  if (text) node[key] = text.utf8();
}

void addFont(bridge::UIFont font, Json& node) {
  if (!font) return;
  node["font"] = {{"name", send<bridge::NSString, "fontName">(font).utf8()},
                  {"size", send<CGFloat, "pointSize">(font)}};
}

void addTextStyle(bridge::UIView view, Json& node) {
  addFont(send<bridge::UIFont, "font">(view), node);
  if (const auto color = send<bridge::UIColor, "textColor">(view))
    node["textColor"] = jsonOf(uikit::UIColor::valueOf(color));
  node["alignment"] = send<NSInteger, "textAlignment">(view);
}

void addLabel(bridge::UIView view, Json& node) {
  addText("text", send<bridge::NSString, "text">(view), node);
  addTextStyle(view, node);
  node["adjustsFontSizeToFitWidth"] = send<bool, "adjustsFontSizeToFitWidth">(view);
  if (const CGFloat least = send<CGFloat, "minimumFontSize">(view); least != 0)
    node["minimumFontSize"] = least;
}

void addParagraph(bridge::NSAttributedString text, Json& node) {
  if (text.length() == 0) return;
  const auto style = send<bridge::NSMutableParagraphStyle, "attribute:atIndex:effectiveRange:">(
      text, bridge::paragraphStyleAttributeName(), NSUInteger{0}, static_cast<NSRange*>(nullptr));
  if (!style) return;
  node["paragraph"] = {{"spacing", send<CGFloat, "paragraphSpacing">(style)},
                       {"spacingBefore", send<CGFloat, "paragraphSpacingBefore">(style)},
                       {"firstLineHeadIndent", send<CGFloat, "firstLineHeadIndent">(style)},
                       {"headIndent", send<CGFloat, "headIndent">(style)}};
}

void addTextView(bridge::UIView view, Json& node) {
  addText("text", send<bridge::NSString, "text">(view), node);
  addTextStyle(view, node);
  node["editable"] = send<bool, "isEditable">(view);
  addParagraph(send<bridge::NSAttributedString, "attributedText">(view), node);
  const NSRange selected = send<NSRange, "selectedRange">(view);
  if (send<bridge::UITextRange, "selectedTextRange">(view))
    node["selectedRange"] = {selected.location, selected.length};
}

void addButton(bridge::UIView view, Json& node) {
  addText("text", send<bridge::NSString, "currentTitle">(view), node);
}

void addCell(bridge::UIView view, Json& node) {
  addText("text", uikit::UITableViewCell::of(view.get()).text(), node);
  addText("detail", uikit::UITableViewCell::of(view.get()).detailText(), node);
  node["accessory"] = send<NSInteger, "accessoryType">(view);
  node["selectionStyle"] = send<NSInteger, "selectionStyle">(view);
}

struct Row {
  const char* className;
  void (*add)(bridge::UIView view, Json& node);
};
constexpr Row rows[] = {
    {"UILabel", &addLabel},
    {"UITextView", &addTextView},
    {"UIButton", &addButton},
    {"UITableViewCell", &addCell},
};

}  // namespace

bool isA(bridge::Object object, const char* className) {
  return bridge::isKindOf(object, objc_getClass(className));
}

std::string classNameOf(bridge::Object object) {
  return object ? class_getName(object_getClass(object.get())) : "";
}

void addClassParts(bridge::UIView view, Json& node) {
  for (const Row& row : rows)
    if (isA(view, row.className)) row.add(view, node);
}

}  // namespace desktop::script
