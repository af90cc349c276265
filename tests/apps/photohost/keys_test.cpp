// SPDX-License-Identifier: MIT
//
// What keys do to the application's screens. The program is also the process that decodes its
// pictures.
#include "apps/photohost/keys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <string_view>

#include "bridge/class_builder.h"
#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/photos_ui/one_up/pu_one_up_photo_view.h"
#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"
#include "desktop/pictures/workers/serve_decoder.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/controls/ui_button.h"
#include "desktop/uikit/lists/ui_collection_view.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "tests/desktop/photos_ui/one_up_screen.h"

namespace photohost {
namespace {

using namespace desktop;
using photos_ui::PUOneUpViewControllerState;

// Something that counts how often it is pressed.
class Presses : public Bound<Presses, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        ClassBuilder<Presses>("KeysTestPresses").method<"pressed:", &Presses::pressed>().build();
    return made;
  }
  int count = 0;

 private:
  void pressed(NSObject) { ++count; }
};

Owned<NSObject> makePresses() {
  return Owned<NSObject>::adopt(send<NSObject, "new">(Presses::classObject()));
}

class KeysTest : public photos_ui::OneUpTest {
 protected:
  KeysTest() {
    for (int index = 0; index < 60; ++index)
      folder.broken("Album/" + std::string(index < 10 ? "0" : "") + std::to_string(index) + ".jpg",
                    index * photos_ui::aDay);
    addPicture("picture.bmp", 60, 1500, 1000);
    open();
    EXPECT_FALSE(photos_ui::openAlbum("Album"));
    settle();
  }
  void showPhoto(long item) {
    const AutoreleasePool pool;
    ASSERT_FALSE(photos_ui::openItem(item));
    settle();
  }
  bool press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const AutoreleasePool pool;
    const bool isUsed = pressKey(QKeyEvent(QEvent::KeyPress, key, modifiers), _window);
    settle();
    return isUsed;
  }
  bool isFullScreen() const { return _window.visibility() == QWindow::FullScreen; }
  static std::size_t index() {
    return PUOneUpViewControllerState::of(photos_ui::oneUpOnShow()).currentIndex();
  }
  static CGFloat scrolled() {
    return uikit::UIScrollViewState::of(grid().collectionView()).contentOffset().y;
  }
  // Another bar item of the single photo, on the right.
  static void addItem(UIBarButtonItem item) {
    const auto items = makeNew<NSMutableArray>();
    const auto known = top().navigationItem().rightBarButtonItems();
    for (NSUInteger place = 0; place < known.count(); ++place) items->add(known.at(place));
    items->add(item);
    top().navigationItem().setRightBarButtonItems(items.get());
    settle();
  }
  static Owned<UIButton> addButton(uikit::UIButtonState::Type type, Presses& target) {
    const AutoreleasePool pool;
    auto button = Owned<UIButton>::retain(
        send<UIButton, "buttonWithType:">(UIButton::classObject(), NSInteger{type}));
    button->addTarget(target.self(), selector<"pressed:">(), touchUpInside);
    addItem(UIBarButtonItem::withCustomView(button.get()).get());
    return button;
  }

 private:
  QWindow _window;
};

TEST_F(KeysTest, ArrowsHomeAndEndTurnPages) {
  showPhoto(5);
  EXPECT_TRUE(press(Qt::Key_Right));
  EXPECT_EQ(index(), 6U);
  EXPECT_TRUE(press(Qt::Key_Left));
  EXPECT_TRUE(press(Qt::Key_Left));
  EXPECT_EQ(index(), 4U);
  EXPECT_TRUE(press(Qt::Key_End));
  EXPECT_EQ(index(), 60U);
  EXPECT_TRUE(press(Qt::Key_Home));
  EXPECT_EQ(index(), 0U);
}

TEST_F(KeysTest, ArrowsAndPagesScrollAGrid) {
  press(Qt::Key_Home);
  const CGFloat start = scrolled();
  EXPECT_TRUE(press(Qt::Key_Down));
  EXPECT_EQ(scrolled(), start + 60);
  EXPECT_TRUE(press(Qt::Key_Up));
  EXPECT_EQ(scrolled(), start);
  EXPECT_TRUE(press(Qt::Key_PageDown));
  EXPECT_GT(scrolled(), start + 300);
  EXPECT_TRUE(press(Qt::Key_PageUp));
  EXPECT_EQ(scrolled(), start);
  EXPECT_TRUE(press(Qt::Key_End));
  EXPECT_GT(scrolled(), start + 600);
  EXPECT_FALSE(press(Qt::Key_Right));
}

TEST_F(KeysTest, EscapeGoesBackStepByStep) {
  showPhoto(0);
  EXPECT_TRUE(press(Qt::Key_Escape));
  EXPECT_EQ(title(), "Album");
  EXPECT_TRUE(press(Qt::Key_Escape));
  EXPECT_EQ(title(), "Albums");
  EXPECT_FALSE(press(Qt::Key_Escape));
}

TEST_F(KeysTest, PlusMinusAndNumbersZoom) {
  show(60);
  const struct {
    int key;
    Qt::KeyboardModifiers modifiers;
    CGFloat zoom;
  } presses[] = {
      {Qt::Key_Plus, Qt::NoModifier, 1.5},       {Qt::Key_Minus, Qt::ControlModifier, 1},
      {Qt::Key_Equal, Qt::ControlModifier, 1.5}, {Qt::Key_Plus, Qt::ShiftModifier, 2.25},
      {Qt::Key_Minus, Qt::NoModifier, 1.5},      {Qt::Key_1, Qt::ControlModifier, 2},
      {Qt::Key_0, Qt::ControlModifier, 1},
  };
  for (const auto& [key, modifiers, zoom] : presses) {
    EXPECT_TRUE(press(key, modifiers));
    EXPECT_NEAR(currentPhoto().zoom(), zoom, 1e-9) << key << " " << modifiers;
  }
}

TEST_F(KeysTest, EscapeLeavesTheFullScreenLast) {
  EXPECT_TRUE(press(Qt::Key_F11));
  EXPECT_TRUE(isFullScreen());
  EXPECT_TRUE(press(Qt::Key_Escape));
  EXPECT_EQ(title(), "Albums");
  EXPECT_TRUE(isFullScreen());
  EXPECT_TRUE(press(Qt::Key_Escape));
  EXPECT_FALSE(isFullScreen());
  EXPECT_FALSE(press(Qt::Key_Escape));
  press(Qt::Key_F11);
  press(Qt::Key_F11);
  EXPECT_FALSE(isFullScreen());
}

TEST_F(KeysTest, EscapeAnswersAnAlertByItsCancelOrOnlyAction) {
  using Actions = std::vector<std::pair<const char*, UIAlertAction::Style>>;
  const struct {
    Actions actions;
    std::string pressed;
  } alerts[] = {
      {{{"Ok", UIAlertAction::normal}}, "Ok"},
      {{{"Delete", UIAlertAction::normal}, {"Cancel", UIAlertAction::cancel}}, "Cancel"},
      {{{"Left", UIAlertAction::normal}, {"Right", UIAlertAction::normal}}, ""},
  };
  for (const auto& [actions, wanted] : alerts) {
    const AutoreleasePool pool;
    std::string pressed;
    const auto alert =
        UIAlertController::make({}, NSString::make("What now?"), UIAlertController::alert);
    for (const auto& [name, style] : actions)
      alert.addAction(UIAlertAction::make(
          NSString::make(name), style,
          Block<void(UIAlertAction)>([&pressed, name = name](UIAlertAction) { pressed = name; })));
    top().present(alert, UIViewController::immediately, {});
    settle();
    EXPECT_TRUE(press(Qt::Key_Escape));
    EXPECT_EQ(pressed, wanted);
    EXPECT_THAT(texts(), testing::Not(testing::Contains("What now?")));
    EXPECT_EQ(title(), "Album");
  }
}

// A view of somebody else's that counts the touches that end on it, and goes by the first.
class Cover : public Bound<Cover, uikit::UIViewState> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made = ClassBuilder<Cover>("KeysTestCover")
                                  .method<"touchesEnded:withEvent:", &Cover::touchesEnded>()
                                  .build();
    return made;
  }
  static int count;

 private:
  void touchesEnded(NSSet, UIEvent) {
    ++count;
    self().removeFromSuperview();
  }
};
int Cover::count = 0;

TEST_F(KeysTest, EscapeTapsWhatOthersLaidOverTheScreen) {
  const auto cover = makeView<UIView>(top().view().bounds(), Cover::classObject());
  top().view().addSubview(cover);
  settle();
  EXPECT_TRUE(press(Qt::Key_Escape));
  EXPECT_EQ(Cover::count, 1);
  EXPECT_EQ(title(), "Album");
  EXPECT_TRUE(press(Qt::Key_Escape));
  EXPECT_EQ(title(), "Albums");
}

TEST_F(KeysTest, EscapeLeavesAloneWhatLiesOverAPartOfTheScreen) {
  Cover::count = 0;
  const auto cover = makeView<UIView>({{0, 0}, {300, 300}}, Cover::classObject());
  top().view().addSubview(cover);
  settle();
  EXPECT_TRUE(press(Qt::Key_Escape));
  EXPECT_EQ(Cover::count, 0);
  EXPECT_EQ(title(), "Albums");
}

TEST_F(KeysTest, EscapeTouchesNothingBelowWhatIsStillComing) {
  Cover::count = 0;
  const auto cover = makeView<UIView>(top().view().bounds(), Cover::classObject());
  top().view().addSubview(cover);
  cover->setAlpha(0);
  UIView::animate(5, Block<void()>([&cover] { cover->setAlpha(1); }));
  settle();
  EXPECT_TRUE(press(Qt::Key_Escape));
  EXPECT_EQ(Cover::count, 0);
  EXPECT_EQ(title(), "Album");
  EXPECT_FALSE(isOneUpOnShow());
}

TEST_F(KeysTest, SpaceOpensAVideoOutside) {
  folder.broken("Album/zz.mov", 99 * photos_ui::aDay);
  deliver();
  showPhoto(61);
  EXPECT_TRUE(press(Qt::Key_Space));
  EXPECT_EQ(uikit::application().opened.size(), 1U);
}

TEST_F(KeysTest, ControlAndCommaOpenTheSettingsOverWhatIsOnShow) {
  showPhoto(5);
  EXPECT_TRUE(press(Qt::Key_Comma, Qt::ControlModifier));
  EXPECT_THAT(texts(), testing::Contains("Settings"));
  EXPECT_TRUE(press(Qt::Key_Escape));
  EXPECT_THAT(texts(), testing::Not(testing::Contains("Settings")));
  EXPECT_EQ(index(), 5U);
  EXPECT_FALSE(press(Qt::Key_Comma)) << "without Control it is no key";
}

TEST_F(KeysTest, IAndAltReturnPressTheInfoButton) {
  showPhoto(0);
  const auto presses = makePresses();
  Presses& target = Presses::of(presses.get());
  EXPECT_FALSE(press(Qt::Key_I)) << "there is none";
  addButton(uikit::UIButtonState::infoLight, target);
  EXPECT_TRUE(press(Qt::Key_I));
  EXPECT_TRUE(press(Qt::Key_Return, Qt::AltModifier));
  EXPECT_TRUE(press(Qt::Key_Enter, Qt::AltModifier | Qt::KeypadModifier));
  EXPECT_EQ(target.count, 3);
  EXPECT_FALSE(press(Qt::Key_I, Qt::ControlModifier));
  EXPECT_FALSE(press(Qt::Key_Return));
  EXPECT_EQ(target.count, 3);
}

TEST_F(KeysTest, ThreeKindsOfButtonsAreInfoButtons) {
  using Button = uikit::UIButtonState;
  showPhoto(0);
  const auto presses = makePresses();
  Presses& target = Presses::of(presses.get());
  const std::pair<Button::Type, bool> kinds[] = {
      {Button::custom, false},   {Button::system, false},  {Button::detailDisclosure, true},
      {Button::infoLight, true}, {Button::infoDark, true}, {Button::contactAdd, false},
  };
  for (const auto& [type, isPressed] : kinds) {
    target.count = 0;
    const auto button = addButton(type, target);
    EXPECT_EQ(press(Qt::Key_I), isPressed) << type;
    EXPECT_EQ(target.count, isPressed ? 1 : 0) << type;
    top().navigationItem().setRightBarButtonItems({});
  }
}

TEST_F(KeysTest, TheFirstInfoButtonThatIsEnabledIsPressed) {
  showPhoto(0);
  const auto first = makePresses();
  const auto second = makePresses();
  const auto disabled = addButton(uikit::UIButtonState::infoLight, Presses::of(first.get()));
  send<void, "setEnabled:">(disabled.get(), false);
  addButton(uikit::UIButtonState::infoLight, Presses::of(second.get()));
  EXPECT_TRUE(press(Qt::Key_I));
  EXPECT_EQ(Presses::of(first.get()).count, 0);
  EXPECT_EQ(Presses::of(second.get()).count, 1);
  send<void, "setEnabled:">(disabled.get(), true);
  EXPECT_TRUE(press(Qt::Key_I));
  EXPECT_EQ(Presses::of(first.get()).count, 1);
  EXPECT_EQ(Presses::of(second.get()).count, 1);
}

TEST_F(KeysTest, APhotoBelowAnotherPageHearsNoKeys) {
  showPhoto(3);
  const auto presses = makePresses();
  addButton(uikit::UIButtonState::infoLight, Presses::of(presses.get()));
  const auto shown = PUOneUpViewControllerState::of(photos_ui::oneUpOnShow()).self();
  UIViewController(shown.get())
      .present(makeNew<UIViewController>(), UIViewController::immediately, {});
  settle();
  EXPECT_FALSE(press(Qt::Key_I));
  EXPECT_FALSE(press(Qt::Key_Right));
  EXPECT_TRUE(press(Qt::Key_Escape));
  EXPECT_EQ(index(), 3U);
  EXPECT_TRUE(press(Qt::Key_I));
  EXPECT_EQ(Presses::of(presses.get()).count, 1);
}

}  // namespace
}  // namespace photohost

int main(int argc, char** argv) {
  using namespace desktop::pictures;
  if (argc > 1 && std::string_view(argv[1]) == "--decode-pictures")
    return serveDecoder(decoderSocket);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
