// SPDX-License-Identifier: MIT
#include "bridge/guard.h"
#include "bridge/uikit/gesture_actions.h"
#include "lumifact/details/details_hooks.h"
#include "lumifact/details/one_up_state.h"
#include "lumifact/state/current_settings.h"

namespace lumifact {
namespace {

constexpr CGFloat spaceBeforeDetails = 20.0;

SEL viewDetails() {
  return selector<"LXViewExifData:">();
}

void makeBarItems(OneUpState& state) {
  state.detailsButton = Owned<UIButton>::retain(UIButton::withType(UIButton::infoLight));
  state.detailsItem = UIBarButtonItem::withCustomView(state.detailsButton);
  state.spacer = UIBarButtonItem::withSystemItem(UIBarButtonItem::fixedSpace, {}, nullptr);
  state.spacer->setWidth(spaceBeforeDetails);
}

void noteLoaded(PUOneUpViewController controller) {
  OneUpState& state = oneUpState();
  if (controller.isPresentedForPreview()) return state.controller.reset();
  state.controller = Owned<PUOneUpViewController>::retain(controller);
  makeBarItems(state);
}

Owned<NSMutableArray> rightItems(UINavigationItem item) {
  const NSArray items = item.rightBarButtonItems();
  return items ? mutableCopy(items) : makeNew<NSMutableArray>();
}

void addDetailsItem() {
  const OneUpState& state = oneUpState();
  if (!settings.useNavigationButton || !state.controller) return;
  const UINavigationItem item = state.controller->navigationItem();
  const auto items = rightItems(item);
  if (items->containsIdentical(state.detailsItem)) return;
  state.detailsButton->addTarget(state.controller, viewDetails(), touchUpInside);
  items->add(state.spacer);
  items->add(state.detailsItem);
  item.setRightBarButtonItems(items);
}

bool recognizesViewDetails(UIView view) {
  const NSArray recognizers = view.gestureRecognizers();
  for (NSUInteger index = 0; index < recognizers.count(); ++index)
    if (sendsAction(recognizers.at(index), viewDetails())) return true;
  return false;
}

void addLongPress(PUOneUpViewController controller) {
  if (!settings.useLongPressPhoto) return;
  const UIView view(objectField(controller, "_tilingView").get());
  if (!view || recognizesViewDetails(view)) return;
  view.addGestureRecognizer(UILongPressGestureRecognizer::make(controller, viewDetails()).get());
}

void updateBars(id self, SEL command) {
  stock<&updateBars>(self, command);
  guarded([] { addDetailsItem(); });
}

id initTilingLayout(id self, SEL command) {
  const id layout = stock<&initTilingLayout>(self, command);
  guarded([&] {
    oneUpState().tilingLayout = Owned<PUOneUpTilingLayout>::retain(PUOneUpTilingLayout(layout));
  });
  return layout;
}

void oneUpWillDisappear(id self, SEL command, BOOL animated) {
  guarded([] { oneUpState().controller.reset(); });
  stock<&oneUpWillDisappear>(self, command, animated);
}

void oneUpDidLoad(id self, SEL command) {
  guarded([&] { noteLoaded(PUOneUpViewController(self)); });
  stock<&oneUpDidLoad>(self, command);
}

void setTilingView(id self, SEL command, id view) {
  stock<&setTilingView>(self, command, view);
  guarded([&] { addLongPress(PUOneUpViewController(self)); });
}

}  // namespace

constinit const HookRow oneUpHooks[] = {
    replaced<"PUOneUpBarsController", "updateBars", &updateBars>,
    replaced<"PUOneUpTilingLayout", "init", &initTilingLayout>,
    replaced<"PUOneUpViewController", "viewWillDisappear:", &oneUpWillDisappear>,
    replaced<"PUOneUpViewController", "viewDidLoad", &oneUpDidLoad>,
};

constinit const HookRow photoLongPressHooks[] = {
    replaced<"PUOneUpViewController", "_setTilingView:", &setTilingView>,
};

}  // namespace lumifact
