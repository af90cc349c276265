// SPDX-License-Identifier: MIT
//
// Pages of settings on the screen, and what fingers store by them.
#include "desktop/photos_ui/settings/settings_screen.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>

#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/settings/preferences.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/controls/ui_segmented_control.h"
#include "desktop/uikit/controls/ui_slider.h"
#include "desktop/uikit/controls/ui_switch.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "foundation/property_lists/property_list.h"
#include "tests/desktop/photos_ui/library_screen.h"
#include "tests/desktop/settings/sample_page.h"

namespace desktop::photos_ui {
namespace {

using settings::listCell;
using settings::pageOf;
using settings::sliderCell;
using settings::switchCell;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

class SettingsScreenTest : public LibraryScreenTest {
 protected:
  SettingsScreenTest() {
    open();
    host().settingsFolder = _pages.path();
    host().deviceRoot = foundation::DeviceRoot(_device.path());
  }
  ~SettingsScreenTest() override { host().deviceRoot = foundation::DeviceRoot("/"); }

  void add(const std::string& name, const model::Array& items) {
    _pages.write(name + ".plist", settings::xmlOf(pageOf(name, items)));
  }
  void show() {
    const AutoreleasePool pool;
    EXPECT_FALSE(openSettings());
    settle();
  }
  void show(const model::Array& items) {
    add("Sample", items);
    show();
  }
  static bool isOnShow() {
    const AutoreleasePool pool;
    return isKindOf(presented(), SettingsScreen::classObject());
  }
  static UIViewController presented() {
    return UIWindow(uikit::application().windows.at(0)->get())
        .rootViewController()
        .presentedViewController();
  }
  std::string file() const {
    return settings::preferenceFile(host().deviceRoot, "com.example.sample");
  }
  model::Value stored() const {
    const auto list = foundation::readPropertyList(file());
    return list ? list->root : model::Value();
  }
  void store(const model::Dictionary& entries) const {
    _device.write("var/mobile/Library/Preferences/com.example.sample.plist",
                  settings::xmlOf(entries));
  }

  // The first view of a class on the screen that is seen, and where its middle is.
  static UIView viewOf(Class aClass) {
    const UIView found = viewOf(aClass, presented().view());
    EXPECT_TRUE(found) << class_getName(aClass);
    return found;
  }
  static CGPoint middleOf(UIView view) {
    const auto& state = uikit::UIViewState::of(view);
    return uikit::apply(state.toScreen(), uikit::middle(state.bounds()));
  }
  static void tapOn(Class aClass) {
    const AutoreleasePool pool;
    tap(middleOf(viewOf(aClass)));
  }
  static void tapText(std::string_view text) {
    const AutoreleasePool pool;
    const UIView label = labelOf(text, UIWindow(uikit::application().windows.at(0)->get()));
    ASSERT_TRUE(label) << text;
    tap(middleOf(label));
  }

 private:
  static UIView viewOf(Class aClass, UIView in) {
    if (isKindOf(in, aClass)) return in;
    for (const auto& each : uikit::UIViewState::of(in).subviews())
      if (const UIView found = viewOf(aClass, each.get())) return found;
    return {};
  }
  // The last one, which is in front.
  static UIView labelOf(std::string_view text, UIView in) {
    UIView found;
    if (const auto label = as<UILabel>(in); label && label.text().utf8() == text) found = in;
    for (const auto& each : uikit::UIViewState::of(in).subviews())
      if (const UIView below = labelOf(text, each.get())) found = below;
    return found;
  }

  support::TemporaryFolder _pages;
  support::TemporaryFolder _device;
};

TEST_F(SettingsScreenTest, TheGearOfTheAlbumsOpensTheOnlyPageAndDoneLeavesIt) {
  add("Sample", {switchCell()});
  ASSERT_FALSE(openAlbums());
  settle();
  tap({350, 42});
  EXPECT_TRUE(isOnShow());
  EXPECT_THAT(texts(), Contains("Sample Settings"));
  EXPECT_THAT(texts(), Contains("Colours"));
  tapText("Done");
  EXPECT_FALSE(isOnShow());
  EXPECT_EQ(title(), "Albums");
}

TEST_F(SettingsScreenTest, SeveralPagesAreAList) {
  add("Alpha", {switchCell()});
  auto other = switchCell();
  other.insert_or_assign("defaults", "com.example.other");
  other.insert_or_assign("label", "Sound");
  add("Beta", {other});
  show();
  EXPECT_THAT(texts(), Contains("Settings"));
  tapText("Beta");
  EXPECT_THAT(texts(), Contains("Sound"));
  EXPECT_FALSE(goBack());
  settle();
  EXPECT_TRUE(isOnShow()) << "back leads to the list first";
  EXPECT_FALSE(goBack());
  settle();
  EXPECT_FALSE(isOnShow());
}

TEST_F(SettingsScreenTest, WithoutPagesItSaysSo) {
  show();
  EXPECT_THAT(texts(), Contains("No extension has settings here."));
}

TEST_F(SettingsScreenTest, IsOpenOnceAndNotOverAnAlert) {
  show({switchCell()});
  const AutoreleasePool pool;
  const UIViewController first = presented();
  EXPECT_FALSE(openSettings());
  settle();
  EXPECT_EQ(presented(), first);
  EXPECT_FALSE(presented().presentedViewController());
  const auto alert = UIAlertController::make(NSString::make("a"), {}, UIAlertController::alert);
  first.present(alert, UIViewController::immediately, {});
  EXPECT_TRUE(openSettings());
}

TEST_F(SettingsScreenTest, ShowsHeadersFootersAndWhatItDoesNotKnow) {
  show({model::Dictionary{{"cell", "PSGroupCell"}, {"label", "Look"}, {"footerText", "As it is."}},
        model::Dictionary{{"cell", "PSButtonCell"}, {"label", "Reset"}},
        model::Dictionary{{"cell", "PSTitleValueCell"}, {"label", "Version"}, {"default", "1.0"}}});
  for (const char* text : {"LOOK", "As it is.", "Reset", "Version", "1.0"})
    EXPECT_THAT(texts(), Contains(text));
  tapText("Reset");
  EXPECT_TRUE(stored().isNull());
}

TEST_F(SettingsScreenTest, ASwitchShowsItsDefaultAndStoresOnlyWhatIsChanged) {
  show({switchCell()});
  const AutoreleasePool pool;
  EXPECT_TRUE(uikit::UISwitch::of(viewOf(uikit::UISwitch::classObject())).isOn());
  EXPECT_TRUE(stored().isNull());
  tapOn(uikit::UISwitch::classObject());
  EXPECT_EQ(stored(), model::Value(model::Dictionary{{"areColoursShown", false}}));
  tapOn(uikit::UISwitch::classObject());
  EXPECT_EQ(stored(), model::Value(model::Dictionary{{"areColoursShown", true}}));
}

TEST_F(SettingsScreenTest, ShowsWhatIsStored) {
  store({{"areColoursShown", false}, {"size", 1.0}, {"speed", "2"}});
  auto segments = listCell();
  segments.insert_or_assign("cell", "PSSegmentCell");
  auto slider = sliderCell();
  slider.insert_or_assign("showValue", true);
  show({switchCell(), listCell(), segments, slider});
  const AutoreleasePool pool;
  EXPECT_FALSE(uikit::UISwitch::of(viewOf(uikit::UISwitch::classObject())).isOn());
  EXPECT_EQ(
      uikit::UISegmentedControl::of(viewOf(uikit::UISegmentedControl::classObject())).selected(),
      0);
  EXPECT_EQ(uikit::UISlider::of(viewOf(uikit::UISlider::classObject())).value(), 2);
  EXPECT_THAT(texts(), Contains("2"));
}

TEST_F(SettingsScreenTest, SegmentsStoreTheValueOfTheirs) {
  auto segments = listCell();
  segments.insert_or_assign("cell", "PSSegmentCell");
  show({segments});
  tapText("Small");
  EXPECT_EQ(stored(), model::Value(model::Dictionary{{"size", 1}}));
}

TEST_F(SettingsScreenTest, AListIsAPageOfItsOwnWithAMark) {
  show({listCell()});
  EXPECT_THAT(texts(), Contains("Large"));
  tapText("Size");
  EXPECT_TRUE(stored().isNull());
  tapText("Small");
  EXPECT_EQ(stored(), model::Value(model::Dictionary{{"size", 1}}));
  EXPECT_FALSE(goBack());
  settle();
  EXPECT_THAT(texts(), Contains("Small"));
  EXPECT_THAT(texts(), Not(Contains("Large")));
}

TEST_F(SettingsScreenTest, ASliderStoresARealWhereTheFingerLeavesIt) {
  auto cell = sliderCell();
  cell.insert_or_assign("isSegmented", true);
  cell.insert_or_assign("segmentCount", 5);
  cell.insert_or_assign("showValue", true);
  show({cell});
  const AutoreleasePool pool;
  const auto& slider = uikit::UISlider::of(viewOf(uikit::UISlider::classObject()));
  uikit::touches().down(uikit::apply(slider.toScreen(), slider.knob()));
  settle(0.2);
  uikit::touches().move(uikit::apply(slider.toScreen(), slider.knobAt(0.57)));
  EXPECT_THAT(texts(), Contains("1.5")) << "the nearest step";
  EXPECT_TRUE(stored().isNull());
  uikit::touches().up(uikit::apply(slider.toScreen(), slider.knobAt(0.57)));
  EXPECT_EQ(stored(), model::Value(model::Dictionary{{"speed", 1.5}}));
}

TEST_F(SettingsScreenTest, ADisabledRowCannotBeChanged) {
  auto toggle = switchCell();
  auto list = listCell();
  toggle.insert_or_assign("enabled", false);
  list.insert_or_assign("enabled", false);
  show({toggle, list});
  tapOn(uikit::UISwitch::classObject());
  tapText("Size");
  EXPECT_THAT(texts(), Contains("Colours")) << "no other page";
  EXPECT_TRUE(stored().isNull());
}

TEST_F(SettingsScreenTest, AValueThatCannotBeWrittenIsToldAndTheRowGoesBack) {
  show({switchCell()});
  std::filesystem::create_directories(file());  // where the file should be
  tapOn(uikit::UISwitch::classObject());
  settle();
  EXPECT_THAT(texts(), Contains("Not Saved"));
  EXPECT_THAT(texts(), Contains(HasSubstr("com.example.sample.plist: ")));
  tapText("OK");
  EXPECT_THAT(texts(), Not(Contains("Not Saved")));
  const AutoreleasePool pool;
  EXPECT_TRUE(uikit::UISwitch::of(viewOf(uikit::UISwitch::classObject())).isOn());
}

TEST_F(SettingsScreenTest, APageThatCannotBeShownSaysWhyAndWritesNothing) {
  show({switchCell(), model::Dictionary{{"cell", "PSSwitchCell"}, {"key", 5}}});
  EXPECT_THAT(texts(), Contains(HasSubstr("This page cannot be shown: row 2: ")));
  EXPECT_THAT(texts(), Not(Contains("Colours")));
  EXPECT_FALSE(std::filesystem::exists(file()));
}

}  // namespace
}  // namespace desktop::photos_ui
