// SPDX-License-Identifier: MIT
#include "tests/lumifact/loader/host_classes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <stdexcept>

#include "bridge/foundation.h"
#include "tests/bridge/victims.h"

namespace lumifact::host {
namespace {

constexpr HostMethod methods[] = {
    {"_UINavigationBarLargeTitleView", "setTitle:", "v@:@"},
    {"_UINavigationBarContentView", "setTitle:", "v@:@"},
    {"PUPhotosGridCell", "initWithFrame:", "@@:{CGRect={CGPoint=dd}{CGSize=dd}}"},
    {"PUPhotosGridCell", "layoutSubviews", "v@:"},
    {"PUPhotoViewContentHelper", "layoutSubviewsOfContentView", "v@:"},
    {"PUAlbumListViewController", "viewWillAppear:", "v@:C", "HostViewController"},
    {"PUAlbumListViewController", "viewWillDisappear:", "v@:C", "HostViewController"},
    {"PUPhotosPanoramaViewController", "viewWillAppear:", "v@:C"},
    {"PUPhotosPanoramaViewController", "viewWillDisappear:", "v@:C"},
    {"PUSectionedGridLayout", "layoutItemSizeForColumn:", "{CGSize=dd}@:q"},
    {"PUSectionedGridLayout", "setItemSize:", "v@:{CGSize=dd}"},
    {"PUPhotosAlbumViewController", "updateGlobalFooter", "v@:"},
    {"PUPhotosGridViewController", "_handleSwipeSelectionGesture:", "v@:@"},
    {"PUPhotosGridViewController", "setEditing:animated:", "v@:CC"},
    {"PUPhotosGridViewController", "localizedSelectionTitle", "@@:"},
    {"PUPhotosGridViewController", "viewDidLoad", "v@:"},
    {"PUPhotosGridViewController", "collectionView:cellForItemAtIndexPath:", "@@:@@"},
    {"PUOneUpBarsController", "updateBars", "v@:"},
    {"PUOneUpTilingLayout", "init", "@@:"},
    {"PUOneUpViewController", "viewWillDisappear:", "v@:C"},
    {"PUOneUpViewController", "viewDidLoad", "v@:"},
    {"PUOneUpViewController", "_setTilingView:", "v@:@"},
};

std::string textOf(id object) {
  return object ? "object " + std::to_string(reinterpret_cast<std::uintptr_t>(object)) : "nil";
}
std::string textOf(BOOL flag) {
  return flag ? "YES" : "NO";
}
std::string textOf(NSInteger number) {
  return std::to_string(number);
}
std::string textOf(CGSize size) {
  return std::to_string(size.width) + " x " + std::to_string(size.height);
}
std::string textOf(CGRect rect) {
  return std::to_string(rect.origin.x) + ", " + std::to_string(rect.origin.y) + ": " +
         textOf(rect.size);
}

// An argument of each type.
template <typename T>
T sample();
template <>
id sample() {
  return bridge::send<id, "self">(bridge::NSNumber::classObject());
}
template <>
BOOL sample() {
  return 1;
}
template <>
NSInteger sample() {
  return 3;
}
template <>
CGSize sample() {
  return {5.5, 6.25};
}
template <>
CGRect sample() {
  return {{1, 2}, {3.5, 4}};
}

// What a host method answers: itself, or a fixed value.
template <typename T>
T answer(id self);
template <>
id answer(id self) {
  return self;
}
template <>
CGSize answer(id) {
  return {11, 22.5};
}

template <typename R, typename... Arguments>
R record(id self, SEL command, Arguments... arguments) {
  hostCalls().push_back({self, sel_getName(command), {textOf(arguments)...}});
  if constexpr (!std::is_void_v<R>) return answer<R>(self);
}

// All that is done with methods of one signature.
struct Shape {
  std::string_view encoding;
  IMP host;
  std::string (*send)(id receiver, SEL selector);
  std::vector<std::string> (*arguments)();
  std::string (*answerText)(id receiver);
};

template <typename R, typename... Arguments>
constexpr Shape shapeOf(R (*)(Arguments...)) {
  return {bridge::encodingOf<R(id, SEL, Arguments...)>,
          reinterpret_cast<IMP>(&record<R, Arguments...>),
          [](id receiver, SEL selector) -> std::string {
            if constexpr (std::is_void_v<R>) {
              bridge::dispatch<void>(receiver, selector, sample<Arguments>()...);
              return "nothing";
            } else {
              return textOf(bridge::dispatch<R>(receiver, selector, sample<Arguments>()...));
            }
          },
          [] { return std::vector<std::string>{textOf(sample<Arguments>())...}; },
          [](id receiver) -> std::string {
            if constexpr (std::is_void_v<R>)
              return "nothing";
            else
              return textOf(answer<R>(receiver));
          }};
}

template <typename Signature>
Shape shapeFor() {
  return shapeOf(static_cast<Signature*>(nullptr));
}

const Shape& shapeNamed(std::string_view encoding) {
  static const std::array shapes = {
      shapeFor<void()>(),           shapeFor<void(id)>(),     shapeFor<void(BOOL)>(),
      shapeFor<void(BOOL, BOOL)>(), shapeFor<void(CGSize)>(), shapeFor<id()>(),
      shapeFor<id(CGRect)>(),       shapeFor<id(id, id)>(),   shapeFor<CGSize(NSInteger)>(),
  };
  const auto* found = std::ranges::find(shapes, encoding, &Shape::encoding);
  if (found == shapes.end()) throw std::invalid_argument(std::string(encoding));
  return *found;
}

void setTilingView(id self, SEL command, id view) {
  record<void>(self, command, view);
  if (!view) victims::raise(self, command);
}

IMP implementationOf(const HostMethod& method) {
  if (std::string_view(method.selector) == "_setTilingView:")
    return reinterpret_cast<IMP>(&setTilingView);
  return shapeNamed(method.encoding).host;
}

// The class of this name, made below the superclass where it does not exist yet.
Class classFor(const char* name, const char* superclass) {
  if (const Class found = objc_getClass(name)) return found;
  return victims::ClassMaker(name, superclass).build();
}

void registerMethod(const HostMethod& method) {
  const char* superclass = "NSObject";
  Class definer = nullptr;
  if (method.definedBy) {
    superclass = method.definedBy;
    definer = classFor(method.definedBy, "NSObject");
  }
  const Class aClass = classFor(method.className, superclass);
  const SEL selector = sel_registerName(method.selector);
  // Two of the classes are UIKit's own and have the method already.
  if (!class_addMethod(definer ? definer : aClass, selector, implementationOf(method),
                       method.encoding))
    method_setImplementation(class_getInstanceMethod(aClass, selector), implementationOf(method));
}

}  // namespace

std::span<const HostMethod> hostMethods() {
  return methods;
}

void registerHostClasses(std::string_view without) {
  for (const HostMethod& method : methods)
    if (method.className != without) registerMethod(method);
  classFor("HostSiblingViewController", "HostViewController");
  class_addMethod(objc_getClass("PUPhotosGridCell"), sel_registerName("sizeLabel"),
                  reinterpret_cast<IMP>(+[](id self, SEL) { return self; }), "@@:");
}

std::vector<HostCall>& hostCalls() {
  static auto& kept = *new std::vector<HostCall>;
  return kept;
}

std::string sendSample(bridge::Object receiver, const char* selector, std::string_view encoding) {
  return shapeNamed(encoding).send(receiver.get(), sel_registerName(selector));
}

std::vector<std::string> sampleArguments(std::string_view encoding) {
  return shapeNamed(encoding).arguments();
}

std::string hostAnswer(bridge::Object receiver, std::string_view encoding) {
  return shapeNamed(encoding).answerText(receiver.get());
}

}  // namespace lumifact::host
