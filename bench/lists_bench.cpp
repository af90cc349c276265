// SPDX-License-Identifier: MIT
//
// What a frame costs while a grid or a table of 100,000 entries scrolls: layout, cells coming and
// going, and the walk of the painter over the tree, on a canvas that paints nothing. A frame has
// 16.7 ms in all.
#include <benchmark/benchmark.h>

#include "bridge/uikit.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/application/window_painter.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/views/view_painter.h"
#include "tests/desktop/uikit/collection_source.h"
#include "tests/desktop/uikit/table_source.h"

namespace {

using namespace desktop::uikit;

constexpr NSInteger entries = 100'000;

class NullCanvas final : public Canvas {
 public:
  void save() override {}
  void restore() override {}
  void transform(const CGAffineTransform&) override {}
  void clip(CGRect, CGFloat) override {}
  void beginGroup(double, CGRect) override {}
  void fill(CGRect, Color, CGFloat) override {}
  void fill(const Path&, Color) override {}
  void stroke(const Path&, CGFloat, Color) override {}
  void shadow(const Path&, Color, CGSize, CGFloat) override {}
  void gradient(CGRect, std::span<const Color>, CGPoint, CGPoint, CGFloat) override {}
  void image(const SharedBitmap&, CGRect) override {}
  void text(std::u16string_view, const FontFace&, Color, CGPoint) override {}
  bool isClippedAway(CGRect) const override { return false; }
};

template <typename T>
bridge::Owned<bridge::NSObject> make() {
  return bridge::Owned<bridge::NSObject>::adopt(
      bridge::send<bridge::NSObject, "init">(bridge::send<id, "alloc">(T::classObject())));
}

// A window with one scroll view that fills it.
class ShownView {
 public:
  explicit ShownView(bridge::UIView list) : _list(bridge::Owned<bridge::UIView>::retain(list)) {
    const auto window = bridge::makeView<bridge::UIWindow>(rectOfSize(screen().size));
    window->makeKeyAndVisible();
    window->addSubview(list);
    application().prepareFrame();
  }

  // Shows the next frame, so many points further down, from the top again at the end.
  void scroll(CGFloat points) {
    const bridge::AutoreleasePool pool;
    const bridge::UIScrollView scroll(_list.get().get());
    CGFloat y = scroll.contentOffset().y + points;
    if (y > scroll.contentSize().height - screen().size.height) y = 0;
    scroll.setContentOffset({0, y});
    application().prepareFrame();
    screen().damage.take();
    paintWindows(_canvas);
  }

 private:
  bridge::Owned<bridge::UIView> _list;
  NullCanvas _canvas;
};

bridge::Owned<bridge::UIView> makeGrid(bridge::NSObject source, bridge::NSObject layout) {
  auto view = bridge::Owned<bridge::UIView>::adopt(
      bridge::send<bridge::UIView, "initWithFrame:collectionViewLayout:">(
          bridge::send<id, "alloc">(bridge::UICollectionView::classObject()),
          rectOfSize(screen().size), bridge::UICollectionViewLayout(layout.get())));
  bridge::send<void, "setDataSource:">(view, source);
  bridge::send<void, "registerClass:forCellWithReuseIdentifier:">(view, TestCell::classObject(),
                                                                  bridge::NSString::make("cell"));
  return view;
}

bridge::Owned<bridge::UIView> makeTable(bridge::NSObject source) {
  auto view =
      bridge::Owned<bridge::UIView>::adopt(bridge::send<bridge::UIView, "initWithFrame:style:">(
          bridge::send<id, "alloc">(bridge::UITableView::classObject()), rectOfSize(screen().size),
          NSInteger{bridge::UITableView::grouped}));
  bridge::send<void, "setDataSource:">(view, source);
  return view;
}

void begin() {
  registerUIKit();
  resetApplication();
}

// A frame of a grid in so many columns, so many points further down.
void scrollGrid(benchmark::State& state) {
  const bridge::AutoreleasePool pool;
  begin();
  const auto source = make<CollectionSource>();
  const auto layout = make<GridLayout>();
  CollectionSource::of(source.get()).itemCount = entries;
  GridLayout::of(layout.get()).columns = state.range(0);
  GridLayout::of(layout.get()).side = 376.0 / static_cast<double>(state.range(0)) - 1;
  {
    ShownView screen(makeGrid(source, layout));
    for (auto _ : state) screen.scroll(static_cast<CGFloat>(state.range(1)));
  }
  resetApplication();
}
BENCHMARK(scrollGrid)
    ->ArgNames({"columns", "points"})
    ->ArgsProduct({{4, 10}, {10, 100, 100'000}})
    ->Unit(benchmark::kMicrosecond);

void scrollTable(benchmark::State& state) {
  const bridge::AutoreleasePool pool;
  begin();
  const auto source = make<TableSource>();
  TableSource::of(source.get()).rowCount = entries;
  {
    ShownView screen(makeTable(source));
    for (auto _ : state) screen.scroll(static_cast<CGFloat>(state.range(0)));
  }
  resetApplication();
}
BENCHMARK(scrollTable)
    ->ArgName("points")
    ->Arg(10)
    ->Arg(100)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);

// What it costs to begin: counts, layout, and the first screen.
void openGrid(benchmark::State& state) {
  const bridge::AutoreleasePool pool;
  begin();
  const auto source = make<CollectionSource>();
  const auto layout = make<GridLayout>();
  CollectionSource::of(source.get()).itemCount = entries;
  for (auto _ : state) {
    const bridge::AutoreleasePool inner;
    ShownView screen(makeGrid(source, layout));
    resetApplication();
  }
}
BENCHMARK(openGrid)->Unit(benchmark::kMicrosecond);

void openTable(benchmark::State& state) {
  const bridge::AutoreleasePool pool;
  begin();
  const auto source = make<TableSource>();
  TableSource::of(source.get()).rowCount = entries;
  for (auto _ : state) {
    const bridge::AutoreleasePool inner;
    ShownView screen(makeTable(source));
    resetApplication();
  }
}
BENCHMARK(openTable)->Unit(benchmark::kMicrosecond);

}  // namespace
