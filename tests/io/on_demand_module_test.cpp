// SPDX-License-Identifier: MIT
#include "io/on_demand_module.h"

#include <gtest/gtest.h>

namespace io {
namespace {

TEST(OnDemandModule, AModuleThatIsNotInstalledHasNoFunction) {
  EXPECT_EQ(functionOfModule("no_such_module.so", "function"), nullptr);
}

}  // namespace
}  // namespace io
