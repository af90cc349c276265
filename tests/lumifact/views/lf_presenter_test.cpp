// SPDX-License-Identifier: MIT
#include "lumifact/views/lf_presenter.h"

#include <algorithm>
#include <limits>

#include "desktop/uikit/application/application.h"
#include "desktop/uikit/graphics/ui_image.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/views/ca_layer.h"
#include "tests/lumifact/views/presented_page.h"

namespace lumifact {
namespace {

using bridge::NSString;
using bridge::Object;
using bridge::send;
using bridge::UITextView;
using desktop::uikit::application;

constexpr std::string_view report = "{Exif} =\n{\n  FNumber = 1.8\n}";

class PresenterTest : public PresentedPageTest {
 protected:
  void show(std::string_view message, const char* mapLink = nullptr, int fontSize = 12) {
    const auto page =
        LFPresenter::make(text(message), mapLink ? text(mapLink) : NSString(), 0, fontSize);
    present(page);
  }
  UITextView textView() const {
    return UITextView(viewOf(topPage().view(), UITextView::classObject()).get());
  }
  // The title of the button on the right-most side.
  std::string toggle() const { return titleOf(rightItems().at(0)); }
  void pressToggle() { press(rightItems().at(0)); }
  void pressDismiss() { press(leftItems().at(0)); }
  Object attribute(NSString name) const {
    return send<Object, "attribute:atIndex:effectiveRange:">(
        send<Object, "attributedText">(textView()), name, NSUInteger{0},
        static_cast<NSRange*>(nullptr));
  }
};

TEST_F(PresenterTest, ShowsTheWholeTextToBeReadAndSelected) {
  show(report);
  EXPECT_EQ(textView().text().utf8(), report);
  EXPECT_FALSE((send<bool, "isEditable">(textView())));
  EXPECT_TRUE((send<bool, "isSelectable">(textView())));
  EXPECT_EQ((send<Object, "delegate">(textView())), topPage());
}

TEST_F(PresenterTest, TheTextFillsThePageAndFollowsItsSize) {
  show(report);
  EXPECT_EQ(textView().frame().size, topPage().view().bounds().size);
  application().resize({667, 375});
  settle();
  EXPECT_EQ(topPage().view().bounds().size.width, 667);
  EXPECT_EQ(textView().frame().size, topPage().view().bounds().size);
}

TEST_F(PresenterTest, IsSetInCourierWithAHangingIndent) {
  struct Case {
    int fontSize;
    double headIndent;
  };
  for (const auto& [fontSize, headIndent] :
       {Case{12, 22.0}, Case{10, 10.0F / 12.0F * 22.0F}, Case{14, 14.0F / 12.0F * 22.0F}}) {
    const auto page = LFPresenter::make(text(report), {}, 0, fontSize);
    page->view();
    const UITextView view(viewOf(page->view(), UITextView::classObject()).get());
    const auto attributed = send<Object, "attributedText">(view);
    const auto style = send<Object, "attribute:atIndex:effectiveRange:">(
        attributed, bridge::paragraphStyleAttributeName(), NSUInteger{0},
        static_cast<NSRange*>(nullptr));
    EXPECT_EQ((send<double, "headIndent">(style)), headIndent) << fontSize;
    EXPECT_EQ((send<double, "firstLineHeadIndent">(style)), 0.0) << fontSize;
    EXPECT_EQ((send<double, "paragraphSpacing">(style)), 1.0) << fontSize;
    EXPECT_EQ((send<double, "paragraphSpacingBefore">(style)), 0.0) << fontSize;
    const auto font = send<Object, "attribute:atIndex:effectiveRange:">(
        attributed, bridge::fontAttributeName(), NSUInteger{0}, static_cast<NSRange*>(nullptr));
    EXPECT_EQ((send<double, "pointSize">(font)), fontSize);
    EXPECT_EQ((send<NSString, "fontName">(font)).utf8(), "Courier");
  }
}

TEST_F(PresenterTest, HasABorderColourAndNoBorder) {
  show(report);
  const auto& style = desktop::uikit::CALayerState::of(textView().layer()).style();
  EXPECT_EQ(style.borderWidth, 0.0);
  EXPECT_TRUE(style.borderColor);
}

TEST_F(PresenterTest, WithoutAMapThereIsTheToggleAlone) {
  show(report);
  EXPECT_EQ(rightItems().count(), 1U);
  EXPECT_EQ(toggle(), "Select All");
  ASSERT_EQ(leftItems().count(), 1U);
  EXPECT_EQ(titleOf(leftItems().at(0)), "Dismiss");
  EXPECT_EQ(look(leftItems().at(0)).style(), 2);
  EXPECT_EQ(look(rightItems().at(0)).style(), 0);
}

TEST_F(PresenterTest, AnyMapLinkBringsTheMapsButtonBesideASpace) {
  for (const char* link : {"", "http://maps.example.org/", "no link at all"}) {
    const auto page = LFPresenter::make(text(report), text(link), 0, 12);
    page->view();
    const auto items = page->navigationItem().rightBarButtonItems();
    ASSERT_EQ(items.count(), 3U) << link;
    EXPECT_EQ(look(items.at(1)).systemItem(), 6) << link;
    EXPECT_EQ(look(items.at(1)).width(), 8.0) << link;
    EXPECT_EQ(look(items.at(2)).systemItem(), 11) << link;
  }
}

TEST_F(PresenterTest, TheToggleSelectsAllAndNothing) {
  show(report);
  pressToggle();
  EXPECT_EQ((send<NSRange, "selectedRange">(textView())), (NSRange{0, report.size()}));
  EXPECT_EQ(toggle(), " Deselect");
  pressToggle();
  EXPECT_FALSE(textView().selectedTextRange());
  EXPECT_EQ(toggle(), "Select All");
  pressToggle();
  EXPECT_EQ(toggle(), " Deselect");
}

TEST_F(PresenterTest, AnEmptyTextIsWhollySelectedToo) {
  show("");
  pressToggle();
  EXPECT_EQ(toggle(), " Deselect");
  pressToggle();
  EXPECT_EQ(toggle(), "Select All");
}

TEST_F(PresenterTest, TheToggleFollowsWhatTheUserSelects) {
  show("one word");
  longPress(CGPoint{12, 80});
  EXPECT_EQ((send<NSRange, "selectedRange">(textView())), (NSRange{0, 3}));
  EXPECT_EQ(toggle(), "Select All");
  ASSERT_TRUE(labelWith(window(), "Select All"));
  auto& menu = desktop::uikit::UIMenuControllerState::shared();
  const auto titles = menu.titles();
  const auto place = std::ranges::find(titles, "Select All");
  ASSERT_NE(place, titles.end());
  menu.run(static_cast<std::size_t>(place - titles.begin()));
  settle();
  EXPECT_EQ(toggle(), " Deselect");
  pressToggle();
  EXPECT_FALSE(textView().selectedTextRange());
  EXPECT_EQ(toggle(), "Select All");
}

TEST_F(PresenterTest, ACaretIsNoSelectionOfAllButOfAnEmptyText) {
  show("words");
  pressToggle();
  tap(CGPoint{200, 400});
  EXPECT_EQ(toggle(), "Select All");
}

TEST_F(PresenterTest, TheMapsButtonHandsTheLinkToTheSystem) {
  show(report, "comgooglemaps://?center=37.331700,-122.030200&zoom=19.00");
  press(rightItems().at(2));
  EXPECT_EQ(application().opened,
            std::vector<std::string>{"comgooglemaps://?center=37.331700,-122.030200&zoom=19.00"});
}

TEST_F(PresenterTest, ALinkThatIsNoneIsHandedOnAsNothing) {
  show(report, "no link at all");
  press(rightItems().at(2));
  EXPECT_TRUE(application().opened.empty());
  EXPECT_TRUE(presented());
}

TEST_F(PresenterTest, DismissTakesThePageAway) {
  show(report);
  pressDismiss();
  EXPECT_FALSE(presented());
}

TEST_F(PresenterTest, TheOffsetHasNoEffect) {
  for (const std::int32_t offset : {0, 50, std::numeric_limits<std::int32_t>::min()}) {
    const auto page = LFPresenter::make(text(report), {}, offset, 12);
    const auto view = viewOf(page->view(), UITextView::classObject());
    EXPECT_EQ(view.frame(), (CGRect{{0, 0}, page->view().bounds().size})) << offset;
  }
}

TEST_F(PresenterTest, LeavesNothingBehind) {
  const long before = bridge::liveBoundObjects();
  {
    const bridge::AutoreleasePool pool;
    show(report, "http://maps.example.org/");
    pressToggle();
    pressDismiss();
  }
  EXPECT_EQ(LFPresenter::liveObjects(), 0);
  EXPECT_EQ(bridge::liveBoundObjects(), before);
}

TEST_F(PresenterTest, MakesAnImageOfOneColour) {
  const auto page = LFPresenter::make(text(report), {}, 0, 12);
  const auto image =
      send<bridge::UIImage, "LFImageWithColor:">(page, bridge::UIColor::greenColor());
  ASSERT_TRUE(image);
  EXPECT_EQ((send<CGSize, "size">(image)), (CGSize{1, 1}));
  const auto bitmap = desktop::uikit::UIImageState::bitmapOf(image);
  ASSERT_TRUE(bitmap);
  EXPECT_EQ(bitmap->pixels, std::vector<std::uint32_t>{0xFF00FF00});
}

TEST_F(PresenterTest, AReportOfTenMegabytesScrollsToItsEnd) {
  std::string lines;
  while (lines.size() < 10'000'000) lines += "  DateTimeOriginal = 2018:09:30 14:03:11\n";
  show(lines);
  const bridge::UIScrollView view(textView().get());
  EXPECT_GT(view.contentSize().height, 100'000);
  view.setContentOffset({0, view.contentSize().height - 667});
  settle();
  EXPECT_GT(view.contentOffset().y, 100'000);
  pressToggle();
  EXPECT_EQ(toggle(), " Deselect");
  EXPECT_EQ((send<NSRange, "selectedRange">(textView())), (NSRange{0, lines.size()}));
}

TEST_F(PresenterTest, ShowsAnyTextInAnySize) {
  const std::string messages[] = {"",
                                  "\n",
                                  std::string("a\0b\x01\x1B\r", 6),
                                  "\xD8\xB3\xD9\x84\xD8\xA7\xD9\x85 123",
                                  "\xE2\x80\xAE"
                                  "abc",
                                  std::string(200'000, 'x')};
  for (const std::string& message : messages) {
    for (const int fontSize : {12, 0, -5, 1000, std::numeric_limits<int>::max()}) {
      const auto page = LFPresenter::make(text(message), {}, 0, fontSize);
      window().setRootViewController(page);
      application().advance(0.1);
      EXPECT_EQ(
          bridge::UITextView(viewOf(page->view(), UITextView::classObject()).get()).text().length(),
          text(message).length())
          << message.size() << " at " << fontSize;
    }
  }
}

}  // namespace
}  // namespace lumifact
