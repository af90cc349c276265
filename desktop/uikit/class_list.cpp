// SPDX-License-Identifier: MIT
#include "desktop/uikit/class_list.h"

#include "desktop/uikit/action_control.h"
#include "desktop/uikit/alert_view.h"
#include "desktop/uikit/bar_background.h"
#include "desktop/uikit/bar_button_view.h"
#include "desktop/uikit/ca_gradient_layer.h"
#include "desktop/uikit/ca_layer.h"
#include "desktop/uikit/menu_overlay.h"
#include "desktop/uikit/navigation_bar_titles.h"
#include "desktop/uikit/ns_paragraph_style.h"
#include "desktop/uikit/tab_bar_button.h"
#include "desktop/uikit/transition_view.h"
#include "desktop/uikit/ui_activity_view_controller.h"
#include "desktop/uikit/ui_alert_action.h"
#include "desktop/uikit/ui_alert_controller.h"
#include "desktop/uikit/ui_application.h"
#include "desktop/uikit/ui_bar_button_item.h"
#include "desktop/uikit/ui_bezier_path.h"
#include "desktop/uikit/ui_button.h"
#include "desktop/uikit/ui_collection_reusable_view.h"
#include "desktop/uikit/ui_collection_view.h"
#include "desktop/uikit/ui_collection_view_cell.h"
#include "desktop/uikit/ui_collection_view_layout.h"
#include "desktop/uikit/ui_collection_view_layout_attributes.h"
#include "desktop/uikit/ui_color.h"
#include "desktop/uikit/ui_control.h"
#include "desktop/uikit/ui_event.h"
#include "desktop/uikit/ui_font.h"
#include "desktop/uikit/ui_gesture_recognizer.h"
#include "desktop/uikit/ui_image.h"
#include "desktop/uikit/ui_image_view.h"
#include "desktop/uikit/ui_label.h"
#include "desktop/uikit/ui_long_press_gesture_recognizer.h"
#include "desktop/uikit/ui_menu_controller.h"
#include "desktop/uikit/ui_navigation_bar.h"
#include "desktop/uikit/ui_navigation_controller.h"
#include "desktop/uikit/ui_navigation_item.h"
#include "desktop/uikit/ui_pan_gesture_recognizer.h"
#include "desktop/uikit/ui_popover_presentation_controller.h"
#include "desktop/uikit/ui_responder.h"
#include "desktop/uikit/ui_screen.h"
#include "desktop/uikit/ui_scroll_view.h"
#include "desktop/uikit/ui_tab_bar.h"
#include "desktop/uikit/ui_tab_bar_controller.h"
#include "desktop/uikit/ui_tab_bar_item.h"
#include "desktop/uikit/ui_table_view.h"
#include "desktop/uikit/ui_table_view_cell.h"
#include "desktop/uikit/ui_table_view_controller.h"
#include "desktop/uikit/ui_table_view_header_footer_view.h"
#include "desktop/uikit/ui_tap_gesture_recognizer.h"
#include "desktop/uikit/ui_text_position.h"
#include "desktop/uikit/ui_text_view.h"
#include "desktop/uikit/ui_toolbar.h"
#include "desktop/uikit/ui_touch.h"
#include "desktop/uikit/ui_view.h"
#include "desktop/uikit/ui_view_controller.h"
#include "desktop/uikit/ui_window.h"

namespace desktop::uikit {
namespace {

// A superclass stands before the classes below it.
constexpr Class (*classes[])() = {
    // clang-format off
    &UIColor::classObject,
    &UIFont::classObject,
    &NSParagraphStyle::classObject,
    &NSMutableParagraphStyle::classObject,
    &UITextPosition::classObject,
    &UITextRange::classObject,
    &UIBezierPath::classObject,
    &UIImage::classObject,
    &CALayer::classObject,
    &CAGradientLayer::classObject,
    &UITouch::classObject,
    &UIEvent::classObject,
    &UIGestureRecognizerTarget::classObject,
    &UIGestureRecognizer::classObject,
    &UITapGestureRecognizer::classObject,
    &UILongPressGestureRecognizer::classObject,
    &UIPanGestureRecognizer::classObject,
    &UIScrollViewPanGestureRecognizer::classObject,
    &UIResponder::classObject,
    &UIApplication::classObject,
    &UIScreen::classObject,
    &UIView::classObject,
    &UIWindow::classObject,
    &UIScrollView::classObject,
    &UITextView::classObject,
    &UIControl::classObject,
    &UIImageView::classObject,
    &UIButton::classObject,
    &UILabel::classObject,
    &ActionControl::classObject,
    &MenuOverlay::classObject,
    &UIMenuController::classObject,
    &UIBarButtonItem::classObject,
    &UINavigationItem::classObject,
    &UITabBarItem::classObject,
    &UIPopoverPresentationController::classObject,
    &UIAlertAction::classObject,
    &BarBackground::classObject,
    &BarButtonView::classObject,
    &TabBarButton::classObject,
    &TransitionView::classObject,
    &AlertView::classObject,
    &NavigationBarContentView::classObject,
    &NavigationBarLargeTitleView::classObject,
    &UINavigationBar::classObject,
    &UIToolbar::classObject,
    &UITabBar::classObject,
    &UIViewController::classObject,
    &UITableViewController::classObject,
    &UINavigationController::classObject,
    &UITabBarController::classObject,
    &UIAlertController::classObject,
    &UIActivityViewController::classObject,
    &UITableViewCell::classObject,
    &UITableViewHeaderFooterView::classObject,
    &UITableView::classObject,
    &UICollectionReusableView::classObject,
    &UICollectionViewCell::classObject,
    &UICollectionViewLayoutAttributes::classObject,
    &UICollectionViewLayout::classObject,
    &UICollectionView::classObject,
    // clang-format on
};

}  // namespace

void registerClasses() {
  for (const auto& classObject : classes) classObject();
}

}  // namespace desktop::uikit
