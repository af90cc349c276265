// SPDX-License-Identifier: MIT
#include "apps/photohost/keys.h"

#include <algorithm>

#include "bridge/uikit.h"
#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"
#include "desktop/uikit/bars/ui_bar_button_item.h"
#include "desktop/uikit/bars/ui_navigation_item.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controls/ui_button.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "desktop/uikit/views/ui_responder.h"
#include "desktop/uikit/views/ui_view.h"

namespace photohost {
namespace {

using namespace desktop;
using photos_ui::OneUpAction;

struct OneUpKey {
  int key;
  Qt::KeyboardModifiers modifiers;
  OneUpAction action;
};
constexpr OneUpKey oneUpKeys[] = {
    {Qt::Key_Right, Qt::NoModifier, OneUpAction::next},
    {Qt::Key_Left, Qt::NoModifier, OneUpAction::previous},
    {Qt::Key_Home, Qt::NoModifier, OneUpAction::first},
    {Qt::Key_End, Qt::NoModifier, OneUpAction::last},
    {Qt::Key_Plus, Qt::NoModifier, OneUpAction::zoomIn},
    {Qt::Key_Equal, Qt::NoModifier, OneUpAction::zoomIn},
    {Qt::Key_Plus, Qt::ControlModifier, OneUpAction::zoomIn},
    {Qt::Key_Equal, Qt::ControlModifier, OneUpAction::zoomIn},
    {Qt::Key_Minus, Qt::NoModifier, OneUpAction::zoomOut},
    {Qt::Key_Minus, Qt::ControlModifier, OneUpAction::zoomOut},
    {Qt::Key_0, Qt::ControlModifier, OneUpAction::fit},
    {Qt::Key_1, Qt::ControlModifier, OneUpAction::actualSize},
    {Qt::Key_Space, Qt::NoModifier, OneUpAction::play},
};

constexpr Qt::KeyboardModifiers meaningful =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

bool is(const QKeyEvent& event, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  return event.key() == key && (event.modifiers() & meaningful) == modifiers;
}

// Lists, grids and texts scroll by what the keys say, in points.
bool scrollScreen(CGFloat distance) {
  const CGSize screen = uikit::screen().size;
  uikit::touches().scroll({screen.width / 2, screen.height / 2}, {0, distance});
  return true;
}

bool scrollByKey(const QKeyEvent& event) {
  constexpr CGFloat line = 60;
  constexpr CGFloat everything = 1e9;
  const CGFloat page = uikit::screen().size.height * 0.8;
  switch (event.key()) {
    case Qt::Key_Down:
      return scrollScreen(line);
    case Qt::Key_Up:
      return scrollScreen(-line);
    case Qt::Key_PageDown:
      return scrollScreen(page);
    case Qt::Key_PageUp:
      return scrollScreen(-page);
    case Qt::Key_Home:
      return scrollScreen(-everything);
    case Qt::Key_End:
      return scrollScreen(everything);
    default:
      return false;
  }
}

bool toggleFullScreen(QWindow& window) {
  const bool isFull = window.visibility() == QWindow::FullScreen;
  isFull ? window.showNormal() : window.showFullScreen();
  return true;
}

// The full screen is left where there is nothing else to leave.
bool goBackOrLeaveFullScreen(QWindow& window) {
  if (!photos_ui::goBack()) return true;
  return window.visibility() == QWindow::FullScreen && toggleFullScreen(window);
}

bool copySelection() {
  const UIResponder responder = uikit::UIResponderState::firstResponder();
  if (!respondsTo<"copy:">(responder)) return false;
  responder.copy(Object());
  return true;
}

bool isInfoButton(UIView view) {
  if (!isKindOf(view, uikit::UIButtonState::classObject())) return false;
  const auto type = uikit::UIButtonState::of(view).type();
  return type >= uikit::UIButtonState::detailDisclosure && type <= uikit::UIButtonState::infoDark &&
         UIButton(view.get()).isEnabled() && !uikit::UIViewState::of(view).isHidden();
}

bool pressInfoButtonOf(const uikit::UINavigationItemState::Items& items) {
  const auto found = std::ranges::find_if(items, [](const auto& item) {
    const auto& state = uikit::UIBarButtonItemState::of(item.get());
    return state.isEnabled() && isInfoButton(state.customView());
  });
  if (found == items.end()) return false;
  const UIButton button(uikit::UIBarButtonItemState::of(found->get()).customView().get());
  button.sendActions(touchUpInside);
  return true;
}

}  // namespace

bool pressInfoButton() {
  const UIViewController shown = photos_ui::oneUpOnShow();
  if (!shown || !shown.navigationController()) return false;
  const auto& items = uikit::UINavigationItemState::of(shown.navigationItem());
  return pressInfoButtonOf(items.leftItems()) || pressInfoButtonOf(items.rightItems());
}

bool pressKey(const QKeyEvent& event, QWindow& window) {
  if (is(event, Qt::Key_F11)) return toggleFullScreen(window);
  if (is(event, Qt::Key_Escape)) return goBackOrLeaveFullScreen(window);
  if (is(event, Qt::Key_C, Qt::ControlModifier)) return copySelection();
  if (is(event, Qt::Key_Q, Qt::ControlModifier)) return window.close();
  if (is(event, Qt::Key_Comma, Qt::ControlModifier)) return !photos_ui::openSettings();
  if (is(event, Qt::Key_I) || is(event, Qt::Key_Return, Qt::AltModifier) ||
      is(event, Qt::Key_Enter, Qt::AltModifier))
    return pressInfoButton();
  for (const OneUpKey& row : oneUpKeys)
    if (is(event, row.key, row.modifiers) &&
        photos_ui::performOneUpAction(photos_ui::oneUpOnShow(), row.action))
      return true;
  return scrollByKey(event);
}

}  // namespace photohost
