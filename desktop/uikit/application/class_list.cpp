// SPDX-License-Identifier: MIT
#include "desktop/uikit/application/class_list.h"

#include "desktop/uikit/application/ui_application.h"
#include "desktop/uikit/application/ui_screen.h"
#include "desktop/uikit/application/ui_window.h"
#include "desktop/uikit/bars/bar_background.h"
#include "desktop/uikit/bars/bar_button_view.h"
#include "desktop/uikit/bars/navigation_bar_titles.h"
#include "desktop/uikit/bars/tab_bar_button.h"
#include "desktop/uikit/bars/ui_bar_button_item.h"
#include "desktop/uikit/bars/ui_navigation_bar.h"
#include "desktop/uikit/bars/ui_navigation_item.h"
#include "desktop/uikit/bars/ui_tab_bar.h"
#include "desktop/uikit/bars/ui_tab_bar_item.h"
#include "desktop/uikit/bars/ui_toolbar.h"
#include "desktop/uikit/controllers/transition_view.h"
#include "desktop/uikit/controllers/ui_activity_view_controller.h"
#include "desktop/uikit/controllers/ui_alert_controller.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"
#include "desktop/uikit/controllers/ui_tab_bar_controller.h"
#include "desktop/uikit/controllers/ui_table_view_controller.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/controls/action_control.h"
#include "desktop/uikit/controls/ui_button.h"
#include "desktop/uikit/controls/ui_control.h"
#include "desktop/uikit/controls/ui_segmented_control.h"
#include "desktop/uikit/controls/ui_slider.h"
#include "desktop/uikit/controls/ui_switch.h"
#include "desktop/uikit/controls/ui_text_position.h"
#include "desktop/uikit/controls/ui_text_view.h"
#include "desktop/uikit/graphics/ui_bezier_path.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/graphics/ui_image.h"
#include "desktop/uikit/lists/ui_collection_reusable_view.h"
#include "desktop/uikit/lists/ui_collection_view.h"
#include "desktop/uikit/lists/ui_collection_view_cell.h"
#include "desktop/uikit/lists/ui_collection_view_layout.h"
#include "desktop/uikit/lists/ui_collection_view_layout_attributes.h"
#include "desktop/uikit/lists/ui_table_view.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"
#include "desktop/uikit/lists/ui_table_view_header_footer_view.h"
#include "desktop/uikit/overlays/alert_view.h"
#include "desktop/uikit/overlays/menu_overlay.h"
#include "desktop/uikit/overlays/ui_alert_action.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/overlays/ui_popover_presentation_controller.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "desktop/uikit/scrolling/ui_scroll_view_pan_gesture_recognizer.h"
#include "desktop/uikit/text/ns_paragraph_style.h"
#include "desktop/uikit/text/ui_font.h"
#include "desktop/uikit/touch/ui_event.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"
#include "desktop/uikit/touch/ui_long_press_gesture_recognizer.h"
#include "desktop/uikit/touch/ui_pan_gesture_recognizer.h"
#include "desktop/uikit/touch/ui_tap_gesture_recognizer.h"
#include "desktop/uikit/touch/ui_touch.h"
#include "desktop/uikit/views/ca_gradient_layer.h"
#include "desktop/uikit/views/ca_layer.h"
#include "desktop/uikit/views/ui_image_view.h"
#include "desktop/uikit/views/ui_label.h"
#include "desktop/uikit/views/ui_responder.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

// A superclass stands before the classes below it.
constexpr Class (*classes[])() = {
    // clang-format off
    &UIColorState::classObject,
    &UIFontState::classObject,
    &NSParagraphStyleState::classObject,
    &NSMutableParagraphStyleState::classObject,
    &UITextPositionState::classObject,
    &UITextRangeState::classObject,
    &UIBezierPathState::classObject,
    &UIImageState::classObject,
    &CALayerState::classObject,
    &CAGradientLayerState::classObject,
    &UITouchState::classObject,
    &UIEventState::classObject,
    &UIGestureRecognizerTarget::classObject,
    &UIGestureRecognizerState::classObject,
    &UITapGestureRecognizerState::classObject,
    &UILongPressGestureRecognizerState::classObject,
    &UIPanGestureRecognizerState::classObject,
    &UIScrollViewPanGestureRecognizer::classObject,
    &UIResponderState::classObject,
    &UIApplicationState::classObject,
    &UIScreenState::classObject,
    &UIViewState::classObject,
    &UIWindowState::classObject,
    &UIScrollViewState::classObject,
    &UITextViewState::classObject,
    &UIControlState::classObject,
    &UIImageViewState::classObject,
    &UIButtonState::classObject,
    &UISegmentedControl::classObject,
    &UISlider::classObject,
    &UISwitch::classObject,
    &UILabelState::classObject,
    &ActionControl::classObject,
    &MenuOverlay::classObject,
    &UIMenuControllerState::classObject,
    &UIBarButtonItemState::classObject,
    &UINavigationItemState::classObject,
    &UITabBarItem::classObject,
    &UIPopoverPresentationControllerState::classObject,
    &UIAlertActionState::classObject,
    &BarBackground::classObject,
    &BarButtonView::classObject,
    &TabBarButton::classObject,
    &TransitionView::classObject,
    &AlertView::classObject,
    &NavigationBarContentView::classObject,
    &NavigationBarLargeTitleView::classObject,
    &UINavigationBarState::classObject,
    &UIToolbarState::classObject,
    &UITabBar::classObject,
    &UIViewControllerState::classObject,
    &UITableViewControllerState::classObject,
    &UINavigationControllerState::classObject,
    &UITabBarControllerState::classObject,
    &UIAlertControllerState::classObject,
    &UIActivityViewControllerState::classObject,
    &UITableViewCellState::classObject,
    &UITableViewHeaderFooterView::classObject,
    &UITableViewState::classObject,
    &UICollectionReusableViewState::classObject,
    &UICollectionViewCellState::classObject,
    &UICollectionViewLayoutAttributesState::classObject,
    &UICollectionViewLayoutState::classObject,
    &UICollectionViewState::classObject,
    // clang-format on
};

}  // namespace

void registerClasses() {
  for (const auto& classObject : classes) classObject();
}

}  // namespace desktop::uikit
