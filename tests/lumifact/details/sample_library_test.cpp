// SPDX-License-Identifier: MIT
//
// Every file of the sample library, from the disk to the text on the screen, beside what the
// command-line tool makes of the same file.
#include "apps/lumifact/texts/asset_texts.h"
#include "desktop/faces/movie/avfoundation_runtime.h"
#include "desktop/faces/photos/ph_asset.h"
#include "desktop/faces/photos/photos_runtime.h"
#include "desktop/uikit/controllers/ui_activity_view_controller.h"
#include "foundation/collation.h"
#include "model/description.h"
#include "tests/lumifact/details/one_up_test.h"
#include "tests/lumifact/views/shown_views.h"
#include "tests/lumifact/views/table_driver.h"

namespace lumifact {
namespace {

using bridge::send;
using bridge::UIViewController;
using desktop::faces::PHAssetState;
using desktop::library::ItemPointer;
using desktop::library::PhotoLibrary;
using foundation::DeviceRoot;
using foundation::Locale;

class SampleLibraryTest : public OneUpTest {
 protected:
  SampleLibraryTest() {
    desktop::faces::registerAVFoundation();
    desktop::faces::registerPhotos();
    _library = *PhotoLibrary::open(SAMPLE_LIBRARY, _root);
    _library->waitAndDeliver();
    openPhoto();
    host::makeTilingLayout();
  }

  const std::vector<ItemPointer>& items() const { return _library->items(); }

  tool::AssetReport expected(const ItemPointer& item) const {
    return tool::reportOf(factsOf(item), environment());
  }
  std::string expectedSummary(const ItemPointer& item) const {
    std::string lines;
    for (const auto& [key, value] : tool::summaryRecordOf(factsOf(item), environment()))
      lines += key.substr(8) + " = " + *value.asString() + "\n";
    return lines;
  }

  // The page that the details of an item are shown on, or nil.
  UIViewController ask(const ItemPointer& item, int viewType) {
    settings.viewType = viewType;
    host::oneUpAnswers().asset =
        bridge::Owned<bridge::Object>::retain(PHAssetState::make(*_library, item));
    host::viewDetails(controller, {});
    settle();
    return send<UIViewController, "topViewController">(presented());
  }
  void close() {
    presented().dismiss(UIViewController::immediately, {});
    settle();
  }
  UIViewController presented() const {
    return send<UIViewController, "presentedViewController">(controller);
  }

 private:
  media::facts::AssetFacts factsOf(const ItemPointer& item) const {
    return *media::facts::readAssetFacts(item->path, _root);
  }
  tool::Environment environment() const {
    return {.root = _root,
            .settings = settings,
            .dates = Locale::ofUser("LC_TIME"),
            .numbers = Locale::ofUser("LC_NUMERIC"),
            .keyOrder = foundation::keyComparison(Locale::ofUser("LC_COLLATE"))};
  }

  const DeviceRoot _root{SAMPLE_LIBRARY};
  std::unique_ptr<PhotoLibrary> _library;
};

std::string textOn(UIViewController page) {
  const auto view = viewOf(page.view(), bridge::UITextView::classObject());
  return bridge::UITextView(view.get()).text().utf8();
}

// What the page's share button hands out.
std::string sharedBy(UIViewController page) {
  send<void, "shareButtonTouched:">(page, bridge::Object());
  settle();
  const auto sheet = send<UIViewController, "presentedViewController">(page);
  const std::string text = desktop::uikit::UIActivityViewControllerState::of(sheet).text();
  desktop::uikit::UIActivityViewControllerState::of(sheet).cancel();
  settle();
  return text;
}

TEST_F(SampleLibraryTest, TextPagesSayWhatTheToolSays) {
  ASSERT_GT(items().size(), 30U);
  for (const ItemPointer& item : items()) {
    const bridge::AutoreleasePool pool;
    const UIViewController page = ask(item, 1);
    ASSERT_TRUE(page) << item->path;
    const tool::AssetReport report = expected(item);
    EXPECT_EQ(textOn(page), report.header + report.text) << item->path;
    EXPECT_EQ(page.navigationItem().rightBarButtonItems().count(), report.mapLink ? 3U : 1U)
        << item->path;
    close();
  }
}

TEST_F(SampleLibraryTest, TablePagesShowWhatTheToolsTableHolds) {
  ASSERT_GT(items().size(), 30U);
  for (const ItemPointer& item : items()) {
    const bridge::AutoreleasePool pool;
    const UIViewController page = ask(item, 2);
    ASSERT_TRUE(page) << item->path;
    const tool::AssetReport report = expected(item);
    if (report.table) {
      EXPECT_TRUE(shownRows(tableOf(page)).starts_with(expectedSummary(item))) << item->path;
      EXPECT_EQ(sharedBy(page), model::description(*report.table)) << item->path;
    } else {
      EXPECT_EQ(textOn(page), report.header + report.text) << item->path;
    }
    close();
  }
}

}  // namespace
}  // namespace lumifact
