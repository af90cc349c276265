// SPDX-License-Identifier: MIT
//
// What a report of 10 MB costs on screen, with real fonts: until its first page is painted, a step
// of scrolling, and going to its end.
#include <benchmark/benchmark.h>

#include <string>

#include "bridge/uikit.h"
#include "desktop/render/renderer.h"
#include "desktop/render/screen_picture.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "desktop/uikit/text/utf16.h"

namespace {

using bridge::NSString;
using desktop::uikit::application;
using desktop::uikit::screen;
using desktop::uikit::UIScrollViewState;

constexpr std::size_t reportUnits = 10'000'000;
constexpr double scale = 2;

std::u16string report(std::u16string_view extra) {
  std::u16string text;
  while (text.size() < reportUnits) {
    text += u"Exposure Time = 1/120 s\nDate Time Original = 2018:11:03 10:21:47\nLens Model = ";
    text += extra;
    text += u" back dual camera 6mm f/2.8, with a text that is wrapped to another line\n";
  }
  return text;
}

bridge::Owned<bridge::NSMutableAttributedString> attributed(NSString text, bridge::UIFont font) {
  auto made = bridge::NSMutableAttributedString::withString(text);
  const auto style = bridge::makeNew<bridge::NSMutableParagraphStyle>();
  style->setHeadIndent(22);
  style->setParagraphSpacing(1);
  made->addAttribute(bridge::fontAttributeName(), font, {0, text.length()});
  made->addAttribute(bridge::paragraphStyleAttributeName(), style, {0, text.length()});
  return made;
}

// A window with one text view that fills it.
class ShownView {
 public:
  ShownView() {
    desktop::uikit::resetApplication();
    const CGRect whole = desktop::uikit::rectOfSize(screen().size);
    const auto window = bridge::makeView<bridge::UIWindow>(whole);
    window->makeKeyAndVisible();
    view = bridge::makeView<bridge::UITextView>(whole);
    view->setBackgroundColor(bridge::UIColor::whiteColor());
    window->addSubview(view);
  }
  ~ShownView() {
    view.reset();
    desktop::uikit::resetApplication();
  }

  void paint() {
    application().prepareFrame();
    picture.update(scale);
  }

  UIScrollViewState& scroll() const { return UIScrollViewState::of(view.get()); }

  const bridge::AutoreleasePool pool;
  bridge::Owned<bridge::UITextView> view;
  desktop::render::ScreenPicture picture;
};

struct Kind {
  const char* font;  // null: the system's
  std::u16string_view extra;
};

// Plain Courier; Courier with a letter beyond ASCII in one paragraph of three; the system font.
constexpr Kind kinds[] = {
    {"Courier", u"camera"}, {"Courier", u"cam\u00E9ra"}, {nullptr, u"camera"}};

bridge::Owned<bridge::NSMutableAttributedString> textOf(std::int64_t kind) {
  const Kind& wanted = kinds[kind];
  const auto font = wanted.font ? bridge::UIFont::named(NSString::make(wanted.font), 12)
                                : bridge::UIFont::systemFont(13);
  return attributed(desktop::uikit::stringOf(report(wanted.extra)), font);
}

void firstPage(benchmark::State& state) {
  const bridge::AutoreleasePool pool;
  const auto text = textOf(state.range(0));
  for (auto _ : state) {
    ShownView screen;
    screen.view->setAttributedText(text);
    screen.paint();
  }
}

void scrollStep(benchmark::State& state) {
  ShownView screen;
  screen.view->setAttributedText(textOf(state.range(0)));
  screen.paint();
  for (auto _ : state) {
    screen.scroll().scrollBy({0, 37});
    screen.paint();
  }
}

// From the beginning to the end and back.
void jumpToEnd(benchmark::State& state) {
  ShownView screen;
  screen.view->setAttributedText(textOf(state.range(0)));
  screen.paint();
  for (auto _ : state) {
    screen.scroll().scrollBy({0, 1e9});
    screen.paint();
    screen.scroll().scrollBy({0, -1e9});
    screen.paint();
  }
}

}  // namespace

BENCHMARK(firstPage)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(scrollStep)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(jumpToEnd)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
  const desktop::render::Renderer renderer(argc, argv, desktop::render::Display::none);
  desktop::uikit::registerUIKit();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
