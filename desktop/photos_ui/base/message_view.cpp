// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/base/message_view.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/labels.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/ui_view.h"
#include "model/utf8.h"

namespace desktop::photos_ui {
namespace {

constexpr CGFloat margin = 32;  // points, at the sides
constexpr CGFloat gap = 8;      // points

CGFloat heightIn(UILabel label, CGFloat width) {
  return label.sizeThatFits(CGSize{width, 0}).height;
}

Owned<UILabel> makeLines(const uikit::FontFace& face) {
  auto label = makeLabel(face, uikit::colors::secondaryText);
  label->setTextAlignment(alignCenter);
  label->setNumberOfLines(0);
  return label;
}

std::string problemCount(std::size_t count) {
  if (count == 0) return {};
  const bool isOne = count == 1;
  return " " + std::to_string(count) + (isOne ? " file or folder" : " files and folders") +
         " could not be shown: see Albums.";
}

}  // namespace

Class MessageView::classObject() {
  static const Class made = ClassBuilder<MessageView>("MessageView")
                                .method<"initWithFrame:", &MessageView::initWithFrame>()
                                .method<"layoutSubviews", &MessageView::layoutSubviews>()
                                .build();
  return made;
}

Owned<UIView> MessageView::make() {
  return makeNew<UIView>(classObject());
}

UIView MessageView::initWithFrame(CGRect frame) {
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  self().setUserInteractionEnabled(false);
  _title = makeLines({.size = 22});
  _reason = makeLines({.size = 15});
  self().addSubview(_title);
  self().addSubview(_reason);
  return self();
}

void MessageView::show(std::string_view title, std::string_view reason) {
  showText(_title, title);
  showText(_reason, reason);
  setNeedsLayout();
}

void MessageView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize room = self().bounds().size;
  const CGFloat width = std::max(0.0, room.width - 2 * margin);
  const CGFloat titleHeight = heightIn(_title, width);
  const CGFloat reasonHeight = heightIn(_reason, width);
  const CGFloat top = (room.height - titleHeight - gap - reasonHeight) / 2;
  _title->setFrame({{margin, top}, {width, titleHeight}});
  _reason->setFrame({{margin, top + titleHeight + gap}, {width, reasonHeight}});
}

void showWhyEmpty(UIView messageView) {
  MessageView& message = MessageView::of(messageView);
  library::PhotoLibrary* const library = host().library;
  if (!library) return message.show("Cannot Open Library", host().libraryProblem);
  const std::string folder = model::replacingInvalidUtf8(library->folder());
  switch (library->state()) {
    case library::LoadingState::reading:
      return message.show("Reading Photos…", folder);
    case library::LoadingState::lost:
      return message.show("Library Not Found", folder + " is gone, or cannot be read any more.");
    case library::LoadingState::ready:
      return message.show("No Photos or Videos", "There are none in " + folder + "." +
                                                     problemCount(library->problems().size()));
  }
}

}  // namespace desktop::photos_ui
