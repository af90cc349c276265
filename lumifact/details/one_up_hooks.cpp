// SPDX-License-Identifier: MIT
#include "lumifact/details/one_up_hooks.h"

#include "bridge/guard.h"
#include "lumifact/details/one_up_state.h"
#include "lumifact/state/current_settings.h"

namespace lumifact {
namespace {

using bridge::NSArray;
using bridge::NSMutableArray;
using bridge::Object;
using bridge::Owned;
using bridge::PUOneUpTilingLayout;
using bridge::PUOneUpViewController;
using bridge::UIBarButtonItem;
using bridge::UIButton;
using bridge::UIView;

constexpr CGFloat spaceBeforeDetails = 20.0;

SEL viewDetails() {
  return bridge::selector<"LXViewExifData:">();
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

Owned<NSMutableArray> rightItems(bridge::UINavigationItem item) {
  const NSArray items = item.rightBarButtonItems();
  return items ? bridge::mutableCopy(items) : bridge::makeNew<NSMutableArray>();
}

void addDetailsItem() {
  const OneUpState& state = oneUpState();
  if (!settings.useNavigationButton || !state.controller) return;
  const bridge::UINavigationItem item = state.controller->navigationItem();
  const auto items = rightItems(item);
  if (items->containsIdentical(state.detailsItem)) return;
  state.detailsButton->addTarget(state.controller, viewDetails(), bridge::touchUpInside);
  items->add(state.spacer);
  items->add(state.detailsItem);
  item.setRightBarButtonItems(items);
}

// A recogniser keeps its targets and actions to itself: a list of records.
bool sendsViewDetails(Object recognizer) {
  const auto targets = bridge::as<NSArray>(bridge::objectField(recognizer, "_targets"));
  for (NSUInteger index = 0; index < targets.count(); ++index)
    if (bridge::sameSelector(bridge::selectorField(targets.at(index), "_action"), viewDetails()))
      return true;
  return false;
}

bool recognizesViewDetails(UIView view) {
  const NSArray recognizers = view.gestureRecognizers();
  for (NSUInteger index = 0; index < recognizers.count(); ++index)
    if (sendsViewDetails(recognizers.at(index))) return true;
  return false;
}

void addLongPress(PUOneUpViewController controller) {
  if (!settings.useLongPressPhoto) return;
  const UIView view(bridge::objectField(controller, "_tilingView").get());
  if (!view || recognizesViewDetails(view)) return;
  view.addGestureRecognizer(
      bridge::UILongPressGestureRecognizer::make(controller, viewDetails()).get());
}

}  // namespace

constinit bridge::Stock<void(id, SEL)> stockPUOneUpBarsController_updateBars;
void PUOneUpBarsController_updateBars(id self, SEL command) {
  stockPUOneUpBarsController_updateBars(self, command);
  bridge::guarded([] { addDetailsItem(); });
}

constinit bridge::Stock<id(id, SEL)> stockPUOneUpTilingLayout_init;
id PUOneUpTilingLayout_init(id self, SEL command) {
  const id layout = stockPUOneUpTilingLayout_init(self, command);
  bridge::guarded([&] {
    oneUpState().tilingLayout = Owned<PUOneUpTilingLayout>::retain(PUOneUpTilingLayout(layout));
  });
  return layout;
}

constinit bridge::Stock<void(id, SEL, BOOL)> stockPUOneUpViewController_viewWillDisappear;
void PUOneUpViewController_viewWillDisappear(id self, SEL command, BOOL animated) {
  bridge::guarded([] { oneUpState().controller.reset(); });
  stockPUOneUpViewController_viewWillDisappear(self, command, animated);
}

constinit bridge::Stock<void(id, SEL)> stockPUOneUpViewController_viewDidLoad;
void PUOneUpViewController_viewDidLoad(id self, SEL command) {
  bridge::guarded([&] { noteLoaded(PUOneUpViewController(self)); });
  stockPUOneUpViewController_viewDidLoad(self, command);
}

constinit bridge::Stock<void(id, SEL, id)> stockPUOneUpViewController_setTilingView;
void PUOneUpViewController_setTilingView(id self, SEL command, id view) {
  stockPUOneUpViewController_setTilingView(self, command, view);
  bridge::guarded([&] { addLongPress(PUOneUpViewController(self)); });
}

}  // namespace lumifact
