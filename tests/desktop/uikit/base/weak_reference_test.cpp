// SPDX-License-Identifier: MIT
#include "desktop/uikit/base/weak_reference.h"

#include <gtest/gtest.h>

namespace desktop::uikit {
namespace {

TEST(WeakReference, ForgetsItsObjectWhenThatGoes) {
  const AutoreleasePool pool;
  auto object = makeNew<NSObject>();
  const WeakReference first(object.get());
  const WeakReference second(object.get());
  EXPECT_EQ(first.get(), object.get());
  EXPECT_EQ(second.get(), object.get());
  object.reset();
  EXPECT_FALSE(first.get());
  EXPECT_FALSE(second.get());
}

TEST(WeakReference, OutlivesAndIsOutlived) {
  const AutoreleasePool pool;
  const auto object = makeNew<NSObject>();
  { const WeakReference gone(object.get()); }
  const WeakReference later(object.get());
  EXPECT_EQ(later.get(), object.get());
}

TEST(WeakReference, OfNilIsNil) {
  EXPECT_FALSE(WeakReference().get());
  EXPECT_FALSE(WeakReference(NSObject()).get());
}

}  // namespace
}  // namespace desktop::uikit
