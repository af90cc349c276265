// SPDX-License-Identifier: MIT
#include "lumifact/views/lf_presenter.h"

#include "bridge/class_builder.h"
#include "lumifact/views/hanging_text.h"
#include "lumifact/views/report_bar.h"

namespace lumifact {
namespace {

constexpr CGFloat messageSpacing = 1.0;
constexpr CGFloat borderWhite = 210.0 / 255.0;

constexpr FixedString initialiser = "initWithMessage:mapString:offsetHeight:fontSize:";

constexpr const char* selectTitle = "Select All";
constexpr const char* deselectTitle = " Deselect";

// Whether the selection is all of the text; of an empty text it always is, as long as there is a
// selection.
bool isAllSelected(UITextView view) {
  const UITextRange range = view.selectedTextRange();
  if (!range) return false;
  const NSInteger start = view.offset(view.beginningOfDocument(), range.start());
  const NSInteger length = view.offset(range.start(), range.end());
  return start == 0 && length == static_cast<NSInteger>(view.text().length());
}

}  // namespace

Class LFPresenter::classObject() {
  static const Class made =
      ClassBuilder<LFPresenter>("LFPresenter")
          .conformsTo("UITextViewDelegate")
          .method<initialiser, &LFPresenter::initWithMessage>()
          .method<"viewDidLoad", &LFPresenter::viewDidLoad>()
          .method<"textViewDidChangeSelection:", &LFPresenter::textViewDidChangeSelection>()
          .method<"selectButtonTouched:", &LFPresenter::selectButtonTouched>()
          .method<"dismissButtonTouched:", &LFPresenter::dismissButtonTouched>()
          .method<"openMaps:", &LFPresenter::openMaps>()
          .method<"LFImageWithColor:", &LFPresenter::imageWithColor>()
          .build();
  return made;
}

Owned<UIViewController> LFPresenter::make(NSString message, NSString mapLink,
                                          std::int32_t offsetHeight, std::int32_t fontSize) {
  return makeWith<UIViewController, initialiser>(classObject(), message, mapLink, offsetHeight,
                                                 fontSize);
}

UIViewController LFPresenter::initWithMessage(NSString message, NSString mapString,
                                              std::int32_t offsetHeight, std::int32_t fontSize) {
  if (!super<UIViewController, "init">()) return UIViewController();
  _messageText = Owned<NSString>::retain(message);
  _offsetHeight = offsetHeight;
  _fontSize = fontSize;
  _mapString = Owned<NSString>::retain(mapString);
  _dismissButton = makeDismissButton(self());
  _selectButton = UIBarButtonItem::withTitle(NSString::make(selectTitle), UIBarButtonItem::plain,
                                             self(), selector<"selectButtonTouched:">());
  return self();
}

void LFPresenter::viewDidLoad() {
  super<void, "viewDidLoad">();
  showBarItems();
  makeTextView();
  showText();
  _deselect = false;
  self().view().setBackgroundColor(UIColor::whiteColor());
}

void LFPresenter::showBarItems() const {
  const UINavigationItem item = self().navigationItem();
  item.setRightBarButtonItems(rightBarItems(_selectButton, _mapString, self()));
  item.setLeftBarButtonItems(NSArray::of(_dismissButton.get()));
}

void LFPresenter::makeTextView() {
  _textView = makeNew<UITextView>();
  _textView->setFont(UIFont::named(NSString::make("Courier"), _fontSize));
  _textView->setDelegate(self());
  _textView->setClipsToBounds(true);
  _textView->setTextAlignment(alignLeft);
  _textView->setBackgroundColor(UIColor::white(1.0, 1.0));
  _textView->setTranslatesAutoresizingMaskIntoConstraints(false);
}

void LFPresenter::showText() const {
  const UIFont font = UIFont::named(NSString::make("Courier"), _fontSize);
  _textView->setAttributedText(
      hangingText(_messageText, font, messageSpacing, headIndentFor(_fontSize)).get());
  // A border of no width: its colour is there for whoever gives it one.
  _textView->layer().setBorderColor(UIColor::white(borderWhite, 1.0).cgColor());
  _textView->setFrame({{0, 0}, self().view().frame().size});
  _textView->setEditable(false);
  _textView->setAutoresizingMask(flexibleWidth | flexibleHeight);
  self().view().addSubview(_textView);
}

void LFPresenter::textViewDidChangeSelection(UITextView view) {
  _deselect = isAllSelected(view);
  showSelectTitle(_deselect);
}

// The flag turns before the selection does, since the text view tells of the change while it makes
// it; the title is the pressed one's, whatever was told.
void LFPresenter::selectButtonTouched(NSObject) {
  const bool selects = !_deselect;
  _deselect = selects;
  if (selects)
    _textView->selectAll({});
  else
    _textView->setSelectedTextRange({});
  showSelectTitle(selects);
}

void LFPresenter::showSelectTitle(bool deselects) const {
  _selectButton->setTitle(NSString::make(deselects ? deselectTitle : selectTitle));
}

void LFPresenter::dismissButtonTouched(NSObject) {
  dismissPage(self());
}

void LFPresenter::openMaps(NSObject) {
  openMapLink(_mapString);
}

UIImage LFPresenter::imageWithColor(UIColor color) {
  constexpr CGSize onePoint = {1.0, 1.0};
  UIGraphicsBeginImageContext(onePoint);
  const CGContextRef context = UIGraphicsGetCurrentContext();
  CGContextSetFillColorWithColor(context, color.cgColor());
  CGContextFillRect(context, {{0, 0}, onePoint});
  const UIImage image(UIGraphicsGetImageFromCurrentImageContext());
  UIGraphicsEndImageContext();
  return image;
}

}  // namespace lumifact
