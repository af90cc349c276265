// SPDX-License-Identifier: MIT
//
// What the bridge costs: a message beside an indirect call, a hooked method beside an unhooked
// one, the life of a bound object, a block.
#include <benchmark/benchmark.h>

#include "bridge/block.h"
#include "bridge/class_builder.h"
#include "bridge/foundation.h"
#include "bridge/hook.h"

namespace {

using namespace bridge;

class Counter : public Bound<Counter, NSObject> {
 public:
  using Bound::Bound;

  static Class classObject() {
    static const Class made = ClassBuilder<Counter>("BenchCounter")
                                  .method<"add:", &Counter::add>()
                                  .method<"addHooked:", &Counter::add>()
                                  .build();
    return made;
  }

  int add(int amount) { return _sum += amount; }

 private:
  int _sum = 0;
};

int BenchCounter_addHooked(id self, SEL command, int amount) {
  return stock<&BenchCounter_addHooked>(self, command, amount);
}

constinit const HookRow table[] = {
    replaced<"BenchCounter", "addHooked:", &BenchCounter_addHooked>,
};

Owned<NSObject> makeCounter() {
  return Owned<NSObject>::adopt(send<NSObject, "new">(Counter::classObject()));
}

// The method's own C function, called through a pointer that the compiler cannot see through.
void indirectCall(benchmark::State& state) {
  const auto counter = makeCounter();
  using Function = int (*)(id, SEL, int);
  auto function = reinterpret_cast<Function>(method_getImplementation(
      class_getInstanceMethod(Counter::classObject(), selector<"add:">())));
  const SEL command = selector<"add:">();
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(function);
    benchmark::DoNotOptimize(function(counter->get(), command, 1));
  }
}
BENCHMARK(indirectCall);

void message(benchmark::State& state) {
  const auto counter = makeCounter();
  while (state.KeepRunning()) benchmark::DoNotOptimize(send<int, "add:">(counter, 1));
}
BENCHMARK(message);

void messageToNil(benchmark::State& state) {
  NSObject nothing;
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(nothing);
    benchmark::DoNotOptimize(send<int, "add:">(nothing, 1));
  }
}
BENCHMARK(messageToNil);

void hookedMessage(benchmark::State& state) {
  const auto counter = makeCounter();
  static const bool applied = (applyHooks(table), true);
  benchmark::DoNotOptimize(applied);
  while (state.KeepRunning()) benchmark::DoNotOptimize(send<int, "addHooked:">(counter, 1));
}
BENCHMARK(hookedMessage);

void objectLife(benchmark::State& state) {
  while (state.KeepRunning()) benchmark::DoNotOptimize(makeCounter().get());
}
BENCHMARK(objectLife);

void blockLife(benchmark::State& state) {
  int calls = 0;
  while (state.KeepRunning()) Block<void()>([&calls] { ++calls; })();
  benchmark::DoNotOptimize(calls);
}
BENCHMARK(blockLife);

}  // namespace
