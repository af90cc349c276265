// SPDX-License-Identifier: MIT
#include "lumifact/views/lumifact_pop_up_view_controller.h"

#include "bridge/class_builder.h"
#include "lumifact/views/box_geometry.h"
#include "lumifact/views/hanging_text.h"
#include "lumifact/views/lumifact_text_view.h"

namespace lumifact {
namespace {

constexpr FixedString showMessage = "showInView:withMessage:animated:";
constexpr FixedString zoomIn = "showAnimate";
constexpr FixedString zoomOut = "removeAnimate";

constexpr CGFloat backdropAlpha = 0.45;
constexpr CGFloat cornerRadius = 5.0;
constexpr CGSize shadowOffset = {-1.0, -1.0};
constexpr float shadowOpacity = 0.3F;
constexpr CGFloat fontSize = 13.0;
constexpr CGFloat paragraphSpacing = 1.5;
constexpr CGFloat headIndent = 22.0;
constexpr CGAffineTransform zoomed = scaling(1.75, 1.75);
constexpr double animationSeconds = 0.25;

}  // namespace

Class LumifactPopUpViewController::classObject() {
  using Self = LumifactPopUpViewController;
  static const Class made = ClassBuilder<Self>("LumifactPopUpViewController")
                                .method<"initWithFrame:", &Self::initWithFrame>()
                                .method<showMessage, &Self::showInView>()
                                .method<"layoutSubviews", &Self::layoutSubviews>()
                                .method<zoomIn, &Self::showAnimate>()
                                .method<zoomOut, &Self::removeAnimate>()
                                .method<"touchesBegan:withEvent:", &Self::touchesBegan>()
                                .method<"touchesEnded:withEvent:", &Self::touchesEnded>()
                                .method<"canBecomeFirstResponder", &Self::canBecomeFirstResponder>()
                                .method<"textView", &Self::textView>()
                                .method<"setTextView:", &Self::setTextView>()
                                .method<"touchDown", &Self::touchDown>()
                                .method<"setTouchDown:", &Self::setTouchDown>()
                                .build();
  return made;
}

void LumifactPopUpViewController::show(UIView host, NSString message) {
  const auto overlay = makeView<UIView>(host.bounds(), classObject());
  send<void, showMessage>(overlay, host, message, true);
}

UIView LumifactPopUpViewController::initWithFrame(CGRect frame) {
  if (!super<UIView, "initWithFrame:">(frame)) return UIView();
  makeBox();
  self().setBackgroundColor(UIColor::blackColor().withAlpha(backdropAlpha));
  _textView->setFrame(initialBox(self().frame().size));
  _textView->setBackgroundColor(UIColor::whiteColor());
  castShadow();
  self().setAutoresizingMask(flexibleWidth | flexibleHeight);
  self().addSubview(_textView);
  return self();
}

void LumifactPopUpViewController::makeBox() {
  _textView = LumifactTextView::make();
  _textView->setClipsToBounds(true);
  _textView->setTextAlignment(alignLeft);
  _textView->setBackgroundColor(UIColor::white(1.0, 1.0));
  _textView->setTranslatesAutoresizingMaskIntoConstraints(false);
  _textView->setEditable(false);
}

// A layer that masks would cut its own shadow off: what was set to clip does so no longer.
void LumifactPopUpViewController::castShadow() const {
  const CALayer layer = _textView->layer();
  layer.setCornerRadius(cornerRadius);
  const UIBezierPath path = UIBezierPath::withRect(shadowOf(_textView->bounds().size));
  layer.setMasksToBounds(false);
  layer.setShadowColor(UIColor::blackColor().cgColor());
  layer.setShadowOffset(shadowOffset);
  layer.setShadowOpacity(shadowOpacity);
  layer.setShadowPath(path.cgPath());
}

void LumifactPopUpViewController::showInView(UIView host, NSString message, bool animated) {
  host.addSubview(self());
  host.bringSubviewToFront(self());
  _textView->setAttributedText(
      hangingText(message, UIFont::systemFont(fontSize), paragraphSpacing, headIndent).get());
  if (animated) send<void, zoomIn>(self());
}

void LumifactPopUpViewController::layoutSubviews() {
  super<void, "layoutSubviews">();
  _textView->sizeToFit();
  _textView->setFrame(
      fittedBox(self().bounds().size, _textView->frame().size.width, _textView->contentSize()));
  const CGRect shadow = shadowOf(_textView->bounds().size);
  _textView->layer().setShadowPath(UIBezierPath::withRect(shadow).cgPath());
}

void LumifactPopUpViewController::showAnimate() {
  self().setTransform(zoomed);
  self().setAlpha(0.0);
  UIView::animate(animationSeconds, Block<void()>([overlay = Owned<UIView>::retain(self())] {
                    overlay->setAlpha(1.0);
                    overlay->setTransform(scaling(1.0, 1.0));
                  }));
}

void LumifactPopUpViewController::removeAnimate() {
  const auto overlay = Owned<UIView>::retain(self());
  UIView::animate(animationSeconds, Block<void()>([overlay] {
                    overlay->setTransform(zoomed);
                    overlay->setAlpha(0.0);
                  }),
                  Block<void(bool)>([overlay](bool finished) {
                    if (finished) overlay->removeFromSuperview();
                  }));
}

void LumifactPopUpViewController::touchesBegan(NSSet touches, UIEvent) {
  const UITouch touch(touches.anyObject().get());
  if (!contains(_textView->frame(), touch.locationIn(self()))) _touchDown = true;
}

void LumifactPopUpViewController::touchesEnded(NSSet, UIEvent) {
  send<void, zoomOut>(self());
}

void LumifactPopUpViewController::setTextView(UITextView view) {
  _textView = Owned<UITextView>::retain(view);
}

}  // namespace lumifact
