// SPDX-License-Identifier: MIT
#include "desktop/io/on_demand_module.h"

#include <gtest/gtest.h>

namespace desktop {
namespace {

TEST(OnDemandModule, AModuleThatIsNotInstalledHasNoFunction) {
  EXPECT_EQ(functionOfModule("no_such_module.so", "function"), nullptr);
}

}  // namespace
}  // namespace desktop
