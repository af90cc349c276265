// SPDX-License-Identifier: MIT
#include "lumifact/details/view_details_action.h"

#include "bridge/guard.h"
#include "lumifact/details/one_up_state.h"
#include "lumifact/details/report_page.h"
#include "lumifact/state/current_settings.h"

namespace lumifact {
namespace {

using bridge::Block;
using bridge::NSIndexPath;
using bridge::NSString;
using bridge::Object;
using bridge::PHAsset;
using bridge::PUAssetReference;
using bridge::PUOneUpViewController;
using bridge::UIAlertAction;
using bridge::UIAlertController;
using bridge::UIViewController;

void presentAlert(UIViewController over, NSString message) {
  const auto alert =
      UIAlertController::make(NSString::make("Erorr:"), message, UIAlertController::alert);
  alert.addAction(UIAlertAction::make(NSString::make("Ok"), UIAlertAction::cancel,
                                      Block<void(UIAlertAction)>([](UIAlertAction) {})));
  over.present(alert, UIViewController::animated, {});
}

// Says what went wrong, and with what.
void report(PUOneUpViewController controller, std::string_view message, Object subject) {
  const NSString text = NSString::make(message).appending(bridge::printed(subject));
  bridge::send<void, "LXErrorAlert:">(controller, text);
}

bool isLongPressTurnedOff(Object sender) {
  return !settings.useLongPressPhoto &&
         isKindOf(sender, bridge::UILongPressGestureRecognizer::classObject());
}

// The page in a navigation controller that looks like the single-photo view's own.
void presentPage(PUOneUpViewController controller, UIViewController page) {
  const auto navigation = bridge::UINavigationController::withRoot(page);
  const bridge::UINavigationBar own = controller.navigationController().navigationBar();
  const bridge::UINavigationBar bar = navigation->navigationBar();
  bar.setBarStyle(own.barStyle());
  bar.setTintColor(own.tintColor());
  controller.present(navigation, UIViewController::animated, Block<void()>([] {}));
}

void showDetailsOf(PUOneUpViewController controller, PHAsset asset) {
  const ItemFile file = openItemFile(asset);
  if (!file.source)
    return report(controller,
                  "Error loading Asset!\nThe full size image/video is missing from your device\n\n",
                  asset.mainFileURL());
  if (const auto page = makeReportPage(asset, file)) presentPage(controller, page);
}

void showDetails(PUOneUpViewController controller, Object sender) {
  const auto& layout = oneUpState().tilingLayout;
  if (isLongPressTurnedOff(sender) || !layout) return;
  const NSIndexPath path = layout->indexPathOfCurrentItem();
  if (!path)
    return bridge::send<void, "LXErrorAlert:">(controller,
                                               NSString::make("Could not find indexPath"));
  const PUAssetReference reference = controller.assetReferenceAt(path, layout);
  const auto asset = bridge::as<PHAsset>(reference.asset());
  if (!asset) return report(controller, "Could not find assetRef\n", reference);
  showDetailsOf(controller, asset);
}

}  // namespace

void PUOneUpViewController_LXErrorAlert(id self, SEL, id message) {
  bridge::guarded([&] { presentAlert(UIViewController(self), NSString(message)); });
}

void PUOneUpViewController_LXViewExifData(id self, SEL, id sender) {
  bridge::guarded([&] { showDetails(PUOneUpViewController(self), Object(sender)); });
}

}  // namespace lumifact
