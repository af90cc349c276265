// SPDX-License-Identifier: MIT
//
// What the extension costs its host: a method that it hooks beside one that it does not, and being
// mapped, from the first look at the library's file to the last row of the hook table.
#include <benchmark/benchmark.h>
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

#include "bridge/class_builder.h"
#include "bridge/foundation.h"
#include "desktop/faces/foundation/foundation_runtime.h"
#include "desktop/uikit/application/uikit.h"

namespace {

using namespace bridge;

// The class whose layoutSubviews the extension hooks, and a method that it leaves alone.
class Cell : public Bound<Cell, NSObject> {
 public:
  using Bound::Bound;

  static Class classObject() {
    static const Class made = ClassBuilder<Cell>("PUPhotosGridCell")
                                  .method<"layoutSubviews", &Cell::layout>()
                                  .method<"layoutOthers", &Cell::layout>()
                                  .build();
    return made;
  }

  void layout() { benchmark::DoNotOptimize(++_layouts); }

 private:
  int _layouts = 0;
};

// What a host does before it maps extensions.
void prepareHost() {
  static const bool prepared = [] {
    desktop::faces::correctFoundation(
        {foundation::DeviceRoot("/nonexistent"), "com.apple.mobileslideshow"});
    desktop::uikit::registerUIKit();
    const AutoreleasePool pool;
    benchmark::DoNotOptimize(NSBundle::mainBundle().bundleIdentifier());
    return Cell::classObject() != nullptr;
  }();
  benchmark::DoNotOptimize(prepared);
}

// Seconds that mapping the extension takes; negative where it cannot be mapped.
double timeOfMapping() {
  const auto start = std::chrono::steady_clock::now();
  if (!dlopen(EXTENSION, RTLD_NOW | RTLD_LOCAL)) return -1;
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The same in a process that has not mapped it yet: an extension is mapped once for good.
double timeInNewProcess() {
  int ends[2];
  double seconds = -1;
  if (pipe(ends) != 0) return seconds;
  const pid_t child = fork();
  if (child == 0) {
    seconds = timeOfMapping();
    const bool isTold = write(ends[1], &seconds, sizeof seconds) == sizeof seconds;
    _exit(isTold ? 0 : 1);
  }
  if (read(ends[0], &seconds, sizeof seconds) != sizeof seconds) seconds = -1;
  close(ends[0]);
  close(ends[1]);
  waitpid(child, nullptr, 0);
  return seconds;
}

void loadExtension(benchmark::State& state) {
  prepareHost();
  while (state.KeepRunning()) {
    const double seconds = timeInNewProcess();
    if (seconds < 0) return state.SkipWithError("the extension cannot be mapped");
    state.SetIterationTime(seconds);
  }
}
BENCHMARK(loadExtension)->UseManualTime()->Unit(benchmark::kMicrosecond);

// The implementation that a message to a cell reaches.
IMP implementationOf(SEL command) {
  return method_getImplementation(class_getInstanceMethod(Cell::classObject(), command));
}

// The method's own C function, through a pointer that the compiler cannot see through.
void indirectCall(benchmark::State& state) {
  prepareHost();
  using Function = void (*)(id, SEL);
  const SEL command = selector<"layoutOthers">();
  auto function = reinterpret_cast<Function>(implementationOf(command));
  const auto receiver = Owned<NSObject>::adopt(send<NSObject, "new">(Cell::classObject()));
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(function);
    function(receiver->get(), command);
  }
}
BENCHMARK(indirectCall);

void unhookedMessage(benchmark::State& state) {
  prepareHost();
  const auto cell = Owned<NSObject>::adopt(send<NSObject, "new">(Cell::classObject()));
  while (state.KeepRunning()) send<void, "layoutOthers">(cell);
}
BENCHMARK(unhookedMessage);

// Last: from here on the extension is mapped into this process.
void hookedMessage(benchmark::State& state) {
  prepareHost();
  static const double mapped = timeOfMapping();
  if (mapped < 0) return state.SkipWithError("the extension cannot be mapped");
  if (implementationOf(selector<"layoutSubviews">()) ==
      implementationOf(selector<"layoutOthers">()))
    return state.SkipWithError("the method is not hooked");
  const auto cell = Owned<NSObject>::adopt(send<NSObject, "new">(Cell::classObject()));
  while (state.KeepRunning()) send<void, "layoutSubviews">(cell);
}
BENCHMARK(hookedMessage);

}  // namespace
