// SPDX-License-Identifier: MIT
//
// Each of the three views in each of its states, as a whole.
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "lumifact/views/lf_presenter.h"
#include "lumifact/views/lumifact_pop_up_view_controller.h"
#include "lumifact/views/lumifact_view_controller.h"
#include "tests/lumifact/views/golden.h"
#include "tests/lumifact/views/presented_page.h"
#include "tests/lumifact/views/table_driver.h"

namespace lumifact {
namespace {

using bridge::NSDictionary;
using desktop::uikit::application;
using desktop::uikit::touches;
using model::Array;
using model::Dictionary;

constexpr std::string_view message =
    "Path: 100APPLE/IMG_0001.JPG\nDate: Sep 30, 2018 at 2:03:20 PM\nFile Size: 2.4 MB\n"
    "Dimensions: 4032x3024\nOrientation: 90\xC2\xB0 CW - Portrait (6)";
constexpr std::string_view report =
    "100APPLE/IMG_0001.JPG\nFile Size: 2.4 MB\n\nColorModel = RGB\n\n{Exif} =\n{\n"
    "  LensModel = a lens whose name is so long that it cannot stand on one line of this page\n}";

class GoldenViewsTest : public PresentedPageTest {
 protected:
  void popUp() {
    LumifactPopUpViewController::show(window(), text(message));
    application().prepareFrame();
  }
  void expectPopUp(const std::string& name) {
    expectGolden(name, viewOf(window(), LumifactPopUpViewController::classObject()));
  }
  void expectPage(const std::string& name) { expectGolden(name, topPage().view()); }
};

TEST_F(GoldenViewsTest, PopUp) {
  popUp();
  expectPopUp("pop_up_begins");
  application().advance(0.125);
  expectPopUp("pop_up_on_its_way");
  settle();
  expectPopUp("pop_up");
  touches().down({5, 30});
  touches().up({5, 30});
  application().advance(0.125);
  expectPopUp("pop_up_leaves");
}

TEST_F(GoldenViewsTest, Presenter) {
  present(LFPresenter::make(text(report), text("http://maps.example.org/"), 0, 12));
  expectPage("presenter");
  press(rightItems().at(0));
  expectPage("presenter_selected");
}

TEST_F(GoldenViewsTest, Table) {
  const Dictionary record = {{"LF742J01FilePath", "100APPLE/IMG_0001.JPG"},
                             {"LF742J03FileSize", "2.4 MB"}};
  const Dictionary photo = {
      {"Depth", 8}, {"{Exif}", Dictionary{{"FNumber", 1.8}, {"Areas", Array{1, Array{2}}}}}};
  present(LumifactViewController::make({.tableData = objects(photo),
                                        .extraData = NSDictionary(objects(record).get()),
                                        .title = text("IMG_0001.JPG")}));
  expectPage("table");
  tapRow(tableOf(topPage()), "{Exif}");
  expectPage("table_section");
  tapRow(tableOf(topPage()), "Areas");
  expectPage("table_array");
}

TEST_F(GoldenViewsTest, TableOfNothing) {
  present(LumifactViewController::make({.title = text("IMG_0001.JPG")}));
  expectPage("table_of_nothing");
}

}  // namespace
}  // namespace lumifact
