// SPDX-License-Identifier: MIT
#include "lumifact/views/lumifact_view_controller.h"

#include <cfloat>

#include "desktop/uikit/application/application.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/overlays/ui_popover_presentation_controller.h"
#include "model/description.h"
#include "tests/lumifact/views/presented_page.h"
#include "tests/lumifact/views/table_driver.h"

namespace lumifact {
namespace {

using bridge::NSDictionary;
using bridge::NSString;
using bridge::Object;
using bridge::send;
using bridge::UITableView;
using bridge::UITableViewCell;
using bridge::UIView;
using bridge::UIViewController;
using desktop::uikit::application;
using model::Array;
using model::Dictionary;
using model::Value;

const Dictionary record = {{"LF742J01FilePath", "100APPLE/IMG_0001.JPG"},
                           {"LF742J02FileDate", "Sep 30, 2018 at 2:03:20 PM"},
                           {"LF742J03FileSize", "2.4 MB"},
                           {"LF742J04AssetHeight", "3024"},
                           {"LF742J05AssetWidth", "4032"}};
const Dictionary photo = {{"Depth", 8},
                          {"Profile", "sRGB"},
                          {"{Exif}", Dictionary{{"FNumber", 1.8}, {"Areas", Array{1, Array{2}}}}}};

class TablePageTest : public PresentedPageTest {
 protected:
  void show(Object data, Object extra = {}, const char* mapLink = nullptr) {
    present(LumifactViewController::make({.tableData = data,
                                          .extraData = NSDictionary(extra.get()),
                                          .mapLink = mapLink ? text(mapLink) : NSString(),
                                          .title = text("IMG_0001.JPG")}));
  }
  void show(const Value& data) { show(objects(data)); }
  UITableView table() const { return tableOf(topPage()); }
  std::string rows() const { return shownRows(table()); }
};

TEST_F(TablePageTest, ShowsTheSummaryAboveTheData) {
  show(objects(photo), objects(record));
  EXPECT_EQ(rows(),
            "FilePath = 100APPLE/IMG_0001.JPG\n"
            "FileDate = Sep 30, 2018 at 2:03:20 PM\n"
            "FileSize = 2.4 MB\n"
            "AssetHeight = 3024\n"
            "AssetWidth = 4032\n"
            "{Exif} >\n"
            "Depth = 8\n"
            "Profile = sRGB\n");
}

TEST_F(TablePageTest, AnEmptyReportHasTheSummaryAlone) {
  show(objects(Dictionary{}), objects(record));
  EXPECT_EQ(rows(),
            "FilePath = 100APPLE/IMG_0001.JPG\n"
            "FileDate = Sep 30, 2018 at 2:03:20 PM\n"
            "FileSize = 2.4 MB\n"
            "AssetHeight = 3024\n"
            "AssetWidth = 4032\n");
}

TEST_F(TablePageTest, NothingAndUnknownThingsHaveNoRowsNotEvenTheSummarys) {
  for (const Object data : {Object(), objects({})}) {
    show(data, objects(record));
    EXPECT_EQ(rows(), "");
    press(leftItems().at(0));
  }
}

TEST_F(TablePageTest, ASingleValueIsARowWithThePagesTitleAndNothingElse) {
  for (const Value& value :
       {Value("text"), Value(3), Value(model::Date{}), Value(model::Data{1})}) {
    show(value);
    EXPECT_EQ(rows(), "IMG_0001.JPG\n");
    press(leftItems().at(0));
  }
}

TEST_F(TablePageTest, ASectionOpensAPageOfItsOwn) {
  show(photo);
  tapRow(table(), "{Exif}");
  EXPECT_EQ((send<NSString, "title">(topPage().navigationItem())).utf8(), "{Exif}");
  EXPECT_EQ(rows(), "Areas >\nFNumber = 1.8\n");
  EXPECT_EQ(leftItems().count(), 0U);
  EXPECT_EQ(rightItems().count(), 1U);
}

TEST_F(TablePageTest, ItemsHaveNoTitleNorHaveTheirPages) {
  show(photo);
  tapRow(table(), "{Exif}");
  tapRow(table(), "Areas");
  EXPECT_EQ(rows(), " = 1\n >\n");
  tap(cellAt(table(), 1));
  EXPECT_FALSE((send<NSString, "title">(topPage().navigationItem())));
  EXPECT_EQ(rows(), " = 2\n");
}

TEST_F(TablePageTest, PagesKeepTheMapAndNotTheSummary) {
  show(objects(photo), objects(record), "http://maps.example.org/");
  EXPECT_EQ(rightItems().count(), 3U);
  tapRow(table(), "{Exif}");
  EXPECT_EQ(rows(), "Areas >\nFNumber = 1.8\n");
  EXPECT_EQ(rightItems().count(), 3U);
}

TEST_F(TablePageTest, ValuesAndSummaryOpenNothing) {
  show(objects(photo), objects(record));
  const UIViewController page = topPage();
  tapRow(table(), "Depth");
  tapRow(table(), "FilePath");
  EXPECT_EQ(topPage(), page);
}

TEST_F(TablePageTest, ARowThatWasPressedIsSelectedNoLonger) {
  show(photo);
  tapRow(table(), "Depth");
  EXPECT_FALSE((send<Object, "indexPathForSelectedRow">(table())));
}

TEST_F(TablePageTest, BarItemsAreInTheirOrder) {
  show(objects(photo), {}, "");
  EXPECT_EQ((send<NSString, "title">(topPage().navigationItem())).utf8(), "IMG_0001.JPG");
  ASSERT_EQ(leftItems().count(), 1U);
  EXPECT_EQ(titleOf(leftItems().at(0)), "Dismiss");
  EXPECT_EQ(look(leftItems().at(0)).style(), 2);
  ASSERT_EQ(rightItems().count(), 3U);
  EXPECT_EQ(look(rightItems().at(0)).systemItem(), 9);
  EXPECT_EQ(look(rightItems().at(1)).systemItem(), 6);
  EXPECT_EQ(look(rightItems().at(1)).width(), 8.0);
  EXPECT_EQ(look(rightItems().at(2)).systemItem(), 11);
}

TEST_F(TablePageTest, HasAHeaderOfHardlyAnyHeight) {
  show(photo);
  const auto header = send<UIView, "tableHeaderView">(table());
  EXPECT_EQ(header.frame().size.height, DBL_MIN);
  EXPECT_EQ((send<NSInteger, "style">(table())), 1);
}

TEST_F(TablePageTest, CellsAreOfTheTwoColumnsAndShrinkTheirTexts) {
  show(photo);
  const UITableViewCell cell = cellAt(table(), 0);
  EXPECT_TRUE((send<bool, "adjustsFontSizeToFitWidth">(cell.textLabel())));
  EXPECT_TRUE((send<bool, "adjustsFontSizeToFitWidth">(cell.detailTextLabel())));
  EXPECT_EQ((send<NSInteger, "accessoryType">(cell)), 1);
  EXPECT_EQ((send<NSInteger, "selectionStyle">(cell)), 1);
  EXPECT_EQ((send<NSInteger, "accessoryType">(cellAt(table(), 1))), 0);
  EXPECT_EQ((send<NSInteger, "selectionStyle">(cellAt(table(), 1))), 0);
  EXPECT_EQ((send<NSString, "reuseIdentifier">(cell)).utf8(), "cellIdentifier");
}

TEST_F(TablePageTest, ALongPressOnARowOffersCopyAlone) {
  show(objects(photo), objects(record));
  for (const NSInteger row : {0, 5, 6}) {
    longPress(cellAt(table(), row));
    EXPECT_EQ(desktop::uikit::UIMenuControllerState::shared().titles(),
              std::vector<std::string>{"Copy"});
    desktop::uikit::UIMenuControllerState::shared().hide();
    settle();
  }
}

TEST_F(TablePageTest, CopySharesTheRowAsText) {
  struct Case {
    NSInteger row;
    const char* text;
  };
  show(objects(Dictionary{{"Width", 3},
                          {"Bytes", model::Data{'a', 'b', 'c'}},
                          {"When", model::Date{1538309000}},
                          {"{Exif}", Dictionary{{"FNumber", 1.8}}}}),
       objects(record));
  for (const auto& [row, expected] :
       {Case{0, "FilePath = 100APPLE/IMG_0001.JPG"},
        Case{5, "{Exif} = {\n    FNumber = \"1.8\";\n}"}, Case{6, "Bytes = <616263>"},
        Case{7, "When = 2018-09-30 12:03:20 +0000"}, Case{8, "Width = 3"}}) {
    longPress(cellAt(table(), row));
    const CGRect menu = desktop::uikit::UIMenuControllerState::shared().menuFrame();
    tap(labelWith(window(), "Copy"));
    ASSERT_TRUE(sheet()) << expected;
    EXPECT_EQ(sharedText(), expected);
    const auto popover = sheet().popoverPresentationController();
    const auto& place = desktop::uikit::UIPopoverPresentationControllerState::of(popover);
    EXPECT_EQ(place.sourceView(), topPage().view());
    EXPECT_EQ(place.sourceRect(), menu);
    closeSheet();
  }
}

TEST_F(TablePageTest, CopyOfAnItemHasNoTitle) {
  show(Array{"sea"});
  longPress(cellAt(table(), 0));
  tap(labelWith(window(), "Copy"));
  EXPECT_EQ(sharedText(), "(null) = sea");
}

TEST_F(TablePageTest, CopyOfASingleValueHasNoValue) {
  show("alone");
  longPress(cellAt(table(), 0));
  tap(labelWith(window(), "Copy"));
  EXPECT_EQ(sharedText(), "IMG_0001.JPG = (null)");
}

TEST_F(TablePageTest, ShareHandsOutTheWholeDataWithoutTheSummary) {
  show(objects(photo), objects(record));
  press(rightItems().at(0));
  ASSERT_TRUE(sheet());
  EXPECT_EQ(sharedText(), model::description(photo));
  const auto popover = sheet().popoverPresentationController();
  EXPECT_EQ(desktop::uikit::UIPopoverPresentationControllerState::of(popover).barButtonItem(),
            rightItems().at(0));
}

TEST_F(TablePageTest, ShareOfNothingSaysSo) {
  show(Object());
  press(rightItems().at(0));
  EXPECT_EQ(sharedText(), "(null)");
}

TEST_F(TablePageTest, TheMapsButtonHandsTheLinkToTheSystem) {
  show(objects(photo), {}, "http://maps.example.org/?q=Lumifact&ll=1,2");
  press(rightItems().at(2));
  EXPECT_EQ(application().opened,
            std::vector<std::string>{"http://maps.example.org/?q=Lumifact&ll=1,2"});
}

TEST_F(TablePageTest, DismissTakesThePagesAway) {
  show(photo);
  press(leftItems().at(0));
  EXPECT_FALSE(presented());
}

// The methods that rows are asked for by name.
TEST_F(TablePageTest, AnswersForTitlesDetailsAndPages) {
  const auto page = LumifactViewController::make({.tableData = objects(photo)});
  const auto path = send<bridge::NSIndexPath, "indexPathForRow:inSection:">(
      bridge::NSIndexPath::classObject(), NSInteger{6}, NSInteger{0});
  id title = nullptr;
  id detail = nullptr;
  const auto value = send<Object, "cellTitle:andDetail:forData:withTitle:andIndexPath:andOffset:">(
      page, &title, &detail, objects(photo), text("Page"), path, std::int32_t{5});
  EXPECT_EQ(NSString(title).utf8(), "Depth");
  EXPECT_EQ(NSString(detail).utf8(), "8");
  EXPECT_EQ(bridge::toValue(value), Value(8));
  EXPECT_TRUE((send<bool, "dataShouldHaveNewPage:">(page, objects(Array{}))));
  EXPECT_FALSE((send<bool, "dataShouldHaveNewPage:">(page, Object())));
  EXPECT_EQ((send<NSString, "getCellDetailStringForData:">(page, objects(0.5))).utf8(), "0.5");
}

TEST_F(TablePageTest, DataOfAnUnknownKindLeavesTitleAndDetailAsTheyAre) {
  const auto page = LumifactViewController::make({});
  const auto path = send<bridge::NSIndexPath, "indexPathForRow:inSection:">(
      bridge::NSIndexPath::classObject(), NSInteger{0}, NSInteger{0});
  id title = text("title").get();
  id detail = nullptr;
  const auto value = send<Object, "cellTitle:andDetail:forData:withTitle:andIndexPath:andOffset:">(
      page, &title, &detail, Object(), text("Page"), path, std::int32_t{0});
  EXPECT_FALSE(value);
  EXPECT_EQ(NSString(title).utf8(), "title");
}

TEST_F(TablePageTest, ShowsAnyTextAndAnythingElse) {
  const std::string controls("a\0b\x01\x1B\x7F", 6);
  const std::string arabic = "\xD8\xB3\xD9\x84\xD8\xA7\xD9\x85 123";
  show(Dictionary{{"", "no key"},
                  {"a controls", controls},
                  {"b empty", ""},
                  {"c huge", std::string(10'000'000, 'x')},
                  {"d broken bytes", model::Data{0xC3, 0x28, 0xFF}},
                  {"e null", Value()},
                  {"f " + arabic, arabic},
                  {"g lines", "one\ntwo"},
                  {"h override",
                   "\xE2\x80\xAE"
                   "reversed"}});
  EXPECT_EQ(rows(), " = no key\na controls = " + controls +
                        "\nb empty = \nc huge = " + std::string(10'000'000, 'x') +
                        "\nd broken bytes = <c328ff>\ne null\nf " + arabic + " = " + arabic +
                        "\ng lines = one\ntwo\nh override = \xE2\x80\xAE"
                        "reversed\n");
}

TEST_F(TablePageTest, StandsOnAScreenOfAnySize) {
  for (const CGSize size : {CGSize{1, 1}, CGSize{0, 0}, CGSize{5000, 10}}) {
    show(photo);
    application().resize(size);
    settle();
    application().resize({375, 667});
    settle();
    EXPECT_EQ(rows(), "{Exif} >\nDepth = 8\nProfile = sRGB\n") << size.width;
    press(leftItems().at(0));
  }
}

TEST_F(TablePageTest, LeavesNothingBehind) {
  const long before = bridge::liveBoundObjects();
  {
    const bridge::AutoreleasePool pool;
    show(objects(photo), objects(record), "http://maps.example.org/");
    tapRow(table(), "{Exif}");
    tapRow(table(), "Areas");
    send<void, "popToRootViewControllerAnimated:">(presented(), true);
    settle();
    press(leftItems().at(0));
  }
  EXPECT_EQ(LumifactViewController::liveObjects(), 0);
  EXPECT_EQ(bridge::liveBoundObjects(), before);
}

}  // namespace
}  // namespace lumifact
