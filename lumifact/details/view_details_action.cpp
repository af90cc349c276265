// SPDX-License-Identifier: MIT
#include "bridge/guard.h"
#include "lumifact/details/details_hooks.h"
#include "lumifact/details/one_up_state.h"
#include "lumifact/details/report_page.h"
#include "lumifact/state/current_settings.h"

namespace lumifact {
namespace {

constexpr FixedString errorAlertMessage = "LXErrorAlert:";

void presentAlert(UIViewController over, NSString message) {
  const auto alert =
      UIAlertController::make(NSString::make("Erorr:"), message, UIAlertController::alert);
  alert.addAction(UIAlertAction::make(NSString::make("Ok"), UIAlertAction::cancel,
                                      Block<void(UIAlertAction)>([](UIAlertAction) {})));
  over.present(alert, UIViewController::animated, {});
}

// Says what went wrong.
void report(PUOneUpViewController controller, NSString text) {
  send<void, errorAlertMessage>(controller, text);
}

// The same, and with what.
void report(PUOneUpViewController controller, std::string_view message, Object subject) {
  report(controller, NSString::make(message).appending(printed(subject)));
}

bool isLongPressTurnedOff(Object sender) {
  return !settings.useLongPressPhoto &&
         isKindOf(sender, UILongPressGestureRecognizer::classObject());
}

// The page in a navigation controller that looks like the single-photo view's own.
void presentPage(PUOneUpViewController controller, UIViewController page) {
  const auto navigation = UINavigationController::withRoot(page);
  const UINavigationBar own = controller.navigationController().navigationBar();
  const UINavigationBar bar = navigation->navigationBar();
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
  if (!path) return report(controller, NSString::make("Could not find indexPath"));
  const PUAssetReference reference = controller.assetReferenceAt(path, layout);
  const auto asset = as<PHAsset>(reference.asset());
  if (!asset) return report(controller, "Could not find assetRef\n", reference);
  showDetailsOf(controller, asset);
}

void errorAlert(id self, SEL, id message) {
  guarded([&] { presentAlert(UIViewController(self), NSString(message)); });
}

void viewExifData(id self, SEL, id sender) {
  guarded([&] { showDetails(PUOneUpViewController(self), Object(sender)); });
}

}  // namespace

constinit const HookRow viewDetailsHooks[] = {
    added<"PUOneUpViewController", errorAlertMessage, "v@:@", &errorAlert>,
    added<"PUOneUpViewController", "LXViewExifData:", "v@:@", &viewExifData>,
};

}  // namespace lumifact
