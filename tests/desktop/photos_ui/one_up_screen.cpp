// SPDX-License-Identifier: MIT
#include "tests/desktop/photos_ui/one_up_screen.h"

#include <cstdio>

#include "bridge/runtime/fields.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/touch/touch_dispatcher.h"

namespace desktop::photos_ui {

using uikit::touches;

namespace {

void append(std::string& bytes, std::uint32_t number, int count) {
  for (int index = 0; index < count; ++index)
    bytes.push_back(static_cast<char>(number >> (8 * index) & 0xFF));
}

// A Windows bitmap of 24 bits a pixel.
std::string greyBitmap(int width, int height) {
  const auto size = static_cast<std::uint32_t>((width * 3 + 3) / 4 * 4 * height);
  std::string bytes = "BM";
  for (const std::uint32_t number : {54 + size, 0U, 54U, 40U}) append(bytes, number, 4);
  append(bytes, static_cast<std::uint32_t>(width), 4);
  append(bytes, static_cast<std::uint32_t>(height), 4);
  append(bytes, 1, 2);
  append(bytes, 24, 2);
  for (const std::uint32_t number : {0U, size, 2835U, 2835U, 0U, 0U}) append(bytes, number, 4);
  return bytes + std::string(size, '\x80');
}

}  // namespace

OneUpTest::OneUpTest() : _loader({.command = {"/proc/self/exe", "--decode-pictures"}}) {
  host().pictures = &_loader;
}

OneUpTest::~OneUpTest() {
  uikit::resetApplication();
  host().pictures = nullptr;
}

void OneUpTest::addPicture(const std::string& name, int day, int width, int height) const {
  const std::string path = folder.write("Album/" + name, greyBitmap(width, height));
  library::setFileDate(path, day * aDay);
}

void OneUpTest::addPictures(int count) const {
  for (int index = 0; index < count; ++index) addPicture(std::to_string(index) + ".bmp", index);
}

void OneUpTest::show(long item) {
  const AutoreleasePool pool;
  if (!library) open();
  ASSERT_FALSE(openAlbum("Album"));
  ASSERT_FALSE(openItem(item));
  deliverPictures();
}

void OneUpTest::peek(long item) {
  const AutoreleasePool pool;
  if (!library) open();
  ASSERT_FALSE(openAlbum("Album"));
  ASSERT_FALSE(peekItem(item));
  deliverPictures();
}

void OneUpTest::deliverPictures() {
  const AutoreleasePool pool;
  settle();
  EXPECT_TRUE(_loader.waitUntilIdle(std::chrono::seconds(30)));
  settle();
}

void OneUpTest::removeFile(const std::string& name) {
  std::remove(folder.file("Album/" + name).c_str());
  deliver();
}

PUOneUpViewControllerState& OneUpTest::oneUp() {
  return PUOneUpViewControllerState::of(oneUpOnShow());
}

bool OneUpTest::isOneUpOnShow() {
  const AutoreleasePool pool;
  return static_cast<bool>(oneUpOnShow());
}

uikit::UINavigationControllerState& OneUpTest::navigation() {
  return uikit::UINavigationControllerState::of(top().navigationController());
}

PUTilingView& OneUpTest::tilingView() {
  return PUTilingView::of(objectField(oneUpOnShow(), "_tilingView"));
}

std::vector<std::string> OneUpTest::pages() {
  const AutoreleasePool pool;
  std::vector<std::string> names;
  for (const auto& view : uikit::UIViewState::of(tilingView().self()).subviews())
    names.push_back(nameOf(PUOneUpPhotoView::of(view.get()).item()));
  return names;
}

PUOneUpPhotoView& OneUpTest::currentPhoto() {
  return PUOneUpPhotoView::of(tilingView().currentPage());
}

CGRect OneUpTest::pictureFrame() {
  const AutoreleasePool pool;
  const auto& view = uikit::UIViewState::of(currentPhoto().self());
  const auto& picture = uikit::UIViewState::of(view.subviews().at(0).get());
  const CGSize size = picture.bounds().size;
  return {uikit::apply(picture.toScreen(), CGPoint{}), size};
}

std::string OneUpTest::nameOf(const library::ItemPointer& item) {
  return item ? item->path.substr(item->path.rfind('/') + 1) : "";
}

bool OneUpTest::act(OneUpAction action) {
  const AutoreleasePool pool;
  const bool isDone = performOneUpAction(oneUpOnShow(), action);
  settle();
  return isDone;
}

void OneUpTest::drag(CGPoint from, CGPoint to) {
  constexpr int steps = 10;
  const AutoreleasePool pool;
  touches().down(from);
  for (int step = 1; step <= steps; ++step) {
    const CGFloat share = static_cast<CGFloat>(step) / steps;
    settle(0.02);
    touches().move({from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share});
  }
  settle(0.3);
  touches().up(to);
  settle();
}

void OneUpTest::doubleTap(CGPoint point) {
  const AutoreleasePool pool;
  for (int tapped = 0; tapped < 2; ++tapped) {
    touches().down(point);
    settle(0.05);
    touches().up(point);
    settle(0.1);
  }
  settle();
}

}  // namespace desktop::photos_ui
