// SPDX-License-Identifier: MIT
#include "tests/lumifact/details/one_up_host.h"

#include <string_view>

#include "bridge/class_builder.h"
#include "lumifact/loader/hook_table.h"
#include "tests/bridge/victims.h"

namespace lumifact::host {
namespace {

using bridge::NSObject;
using bridge::NSString;
using bridge::Object;
using bridge::Owned;
using bridge::PUOneUpViewController;
using bridge::UIView;
using victims::ClassMaker;

void note(const char* call) {
  oneUpAnswers().calls.emplace_back(call);
}

id assetReference(id, SEL, id, id) {
  if (!oneUpAnswers().hasReference) return nullptr;
  return victims::make(objc_getClass("PUAssetReference")).autorelease().get();
}

void registerController() {
  ClassMaker("PUOneUpViewController", "UIViewController")
      .field("_tilingView", "@")
      .method(
          "isPresentedForPreview",
          +[](id, SEL) -> BOOL { return oneUpAnswers().isPreview ? 1 : 0; })
      .method("_assetReferenceAtIndexPath:layout:", &assetReference)
      .method(
          "viewDidLoad", +[](id, SEL) { note("viewDidLoad"); })
      .method(
          "viewWillDisappear:", +[](id, SEL, BOOL) { note("viewWillDisappear:"); })
      .method(
          "_setTilingView:",
          +[](id self, SEL, id view) {
            note("_setTilingView:");
            victims::setField(Object(self), "_tilingView", view);
          })
      .build();
}

void registerOthers() {
  ClassMaker("PUOneUpBarsController")
      .method(
          "updateBars", +[](id, SEL) { note("updateBars"); })
      .build();
  ClassMaker("PUAssetReference")
      .method(
          "asset", +[](id, SEL) { return oneUpAnswers().asset->get(); })
      .method(
          "description", +[](id, SEL) { return NSString::make("a reference").get(); })
      .build();
  ClassMaker("PUOneUpTilingLayout")
      .method(
          "init",
          +[](id self, SEL) {
            note("init");
            return self;
          })
      .method(
          "indexPathOfCurrentItem",
          +[](id, SEL) -> id {
            if (!oneUpAnswers().hasIndexPath) return nullptr;
            return bridge::send<id, "indexPathForRow:inSection:">(
                bridge::NSIndexPath::classObject(), NSInteger{3}, NSInteger{0});
          })
      .build();
}

// Host methods are hooked as in life: by the rows of the table.
void applyRows() {
  for (const bridge::HookList rows : hookTable())
    if (std::string_view(rows.front().className).starts_with("PUOneUp")) bridge::applyHooks(rows);
}

}  // namespace

OneUpAnswers& oneUpAnswers() {
  static auto& kept = *new OneUpAnswers;
  return kept;
}

void installOneUpHost() {
  static const bool installed = [] {
    registerController();
    registerOthers();
    applyRows();
    return true;
  }();
  static_cast<void>(installed);
}

Owned<PUOneUpViewController> makeOneUpViewController() {
  return bridge::makeNew<PUOneUpViewController>();
}

void makeTilingLayout() {
  victims::make(objc_getClass("PUOneUpTilingLayout"));
}

void updateBars() {
  const auto bars = victims::make(objc_getClass("PUOneUpBarsController"));
  bridge::send<void, "updateBars">(bars);
}

void setTilingView(PUOneUpViewController controller, UIView view) {
  oneUpAnswers().tilingView = Owned<UIView>::retain(view);
  bridge::send<void, "_setTilingView:">(controller, view);
}

void viewDetails(PUOneUpViewController controller, NSObject sender) {
  bridge::send<void, "LXViewExifData:">(controller, sender);
}

}  // namespace lumifact::host
