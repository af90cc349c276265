// SPDX-License-Identifier: MIT
//
// Fingers that do anything at all, over views that come and go meanwhile.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "desktop/uikit/base/weak_reference.h"
#include "desktop/uikit/controls/ui_control.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"
#include "desktop/uikit/views/ui_view.h"
#include "tests/desktop/uikit/touch_probes.h"

namespace desktop::uikit {
namespace {

constexpr std::size_t sequences = 1'000;
constexpr int stepsASequence = 40;

class TouchSequencesTest : public TouchTest {
 protected:
  TouchSequencesTest() {
    UIScrollViewState::of(scroller.get()).setContentSize({900, 3'000});
    send<void, "setDelegate:">(scroller.get(), probe.get());
    of(probe).onAction = [this] {
      if (below(8) == 0) removeAny();
      if (below(20) == 0) touches().cancel();
    };
    window().addSubview(scroller);
  }
  ~TouchSequencesTest() override { send<void, "setDelegate:">(scroller.get(), NSObject()); }

  int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
  CGPoint anywhere() { return {below(420) - 20.0, below(700) - 20.0}; }
  // Where the finger is moved to: mostly near where it was.
  CGPoint next() {
    const CGPoint near{last.x + below(31) - 15, last.y + below(31) - 15};
    return last = below(4) == 0 ? anywhere() : near;
  }

  // Any view of the tree below the window, or the window.
  UIView anyView() {
    UIView view = window();
    for (int depth = below(5); depth > 0; --depth) {
      const auto& subviews = UIViewState::of(view.get()).subviews();
      if (subviews.empty()) break;
      view = subviews[random() % subviews.size()];
    }
    return view;
  }

  void removeAny() {
    const UIView view = anyView();
    if (view != window()) view.removeFromSuperview();
    if (!UIViewState::of(scroller.get()).superview()) window().addSubview(scroller);
  }

  void addView() {
    const CGRect frame{anywhere(), {below(300) + 1.0, below(300) + 1.0}};
    switch (below(3)) {
      case 0: {
        const auto control = bridge::makeView<UIControl>(frame);
        UIControlState::of(control.get()).addTarget(probe, selector<"act:event:">(), 0xfff);
        return anyView().addSubview(control);
      }
      case 1: {
        const auto inner = bridge::makeView<UIScrollView>(frame);
        inner->setContentSize({below(1'000) + 0.0, below(1'000) + 0.0});
        send<void, "setPagingEnabled:">(inner.get(), below(2) == 0);
        return anyView().addSubview(inner);
      }
      default:
        return anyView().addSubview(ProbeView::make(frame));
    }
  }

  void addRecognizer() {
    const UIView view = anyView();
    const auto others = UIViewState::of(view.get()).gestureRecognizers();
    Owned<UIGestureRecognizer> made;
    switch (below(3)) {
      case 0: {
        const auto tapping = recognize<UITapGestureRecognizer>(view, probe);
        tapping->setNumberOfTapsRequired(static_cast<NSUInteger>(1 + below(2)));
        made = made.retain(tapping);
        break;
      }
      case 1:
        made = made.retain(recognize<UILongPressGestureRecognizer>(view, probe));
        break;
      default:
        made = made.retain(recognize<UIPanGestureRecognizer>(view, probe));
    }
    made->setDelaysTouchesBegan(below(3) == 0);
    if (below(3) == 0) made->setDelegate(probe);
    if (!others.empty() && below(2) == 0)
      send<void, "requireGestureRecognizerToFail:">(made.get(),
                                                    others[random() % others.size()].get());
  }

  void changeRecognizer() {
    const UIView view = anyView();
    const auto recognizers = UIViewState::of(view.get()).gestureRecognizers();
    if (recognizers.empty()) return;
    const auto& any = recognizers[random() % recognizers.size()];
    if (below(2) == 0)
      send<void, "setEnabled:">(any.get(), below(3) != 0);
    else if (!isKindOf(view, UIScrollViewState::classObject()))
      view.removeGestureRecognizer(any);
  }

  void step() {
    switch (below(13)) {
      case 0:
      case 1:
        return touches().down(last = anywhere());
      case 2:
      case 3:
      case 4:
      case 5:
        return touches().move(next());
      case 6:
      case 7:
        return touches().up(next());
      case 8:
        return below(3) == 0 ? touches().cancel() : touches().scroll(anywhere(), anywhere());
      case 9:
        return addView();
      case 10:
        return addRecognizer();
      case 11:
        return below(2) == 0 ? removeAny() : changeRecognizer();
      default:
        return wait(below(100) * 0.01);
    }
  }

  CGPoint last;
  std::mt19937 random;
  Owned<UIScrollView> scroller = bridge::makeView<UIScrollView>({{20, 20}, {300, 600}});
};

TEST_F(TouchSequencesTest, EndWell) {
  // TOUCH_SEED=n repeats a run.
  const char* given = std::getenv("TOUCH_SEED");
  const unsigned seed =
      given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : std::random_device()();
  std::printf("seed %u\n", seed);
  random.seed(seed);
  UIApplication::sharedApplication();   // once made, it stays
  const WeakReference anchored(probe);  // as does what controls tell their targets by
  const long before = liveBoundObjects();
  for (std::size_t sequence = 0; sequence < sequences; ++sequence) {
    const AutoreleasePool pool;
    of(probe).letsTogether = below(2) == 0;
    of(probe).letsReceive = below(8) != 0;
    of(probe).letsBegin = below(8) != 0;
    for (int count = 0; count < 5; ++count) addView();
    for (int count = 0; count < 5; ++count) addRecognizer();
    for (int count = 0; count < stepsASequence; ++count) step();
    touches().cancel();
    while (!UIViewState::of(scroller.get()).subviews().empty())
      UIViewState::of(scroller.get()).subviews().back()->removeFromSuperview();
    while (!UIViewState::of(window().get()).subviews().empty())
      UIViewState::of(window().get()).subviews().back()->removeFromSuperview();
    const auto recognizers = UIViewState::of(window().get()).gestureRecognizers();
    for (const auto& recognizer : recognizers) window().removeGestureRecognizer(recognizer);
    const auto ofScroller = UIViewState::of(scroller.get()).gestureRecognizers();
    for (std::size_t index = 1; index < ofScroller.size(); ++index)
      scroller->removeGestureRecognizer(ofScroller[index]);
    window().addSubview(scroller);
    wait(1);
    ASSERT_FALSE(touches().isDown()) << "seed " << seed << ", sequence " << sequence;
  }
  EXPECT_EQ(liveBoundObjects(), before) << "seed " << seed;
  // They did what fingers do.
  EXPECT_GT(of(probe).told.size(), sequences) << "seed " << seed;
  EXPECT_GT(of(probe).scrolling.size(), sequences / 2) << "seed " << seed;
}

}  // namespace
}  // namespace desktop::uikit
