// SPDX-License-Identifier: MIT
//
// The test program is also its own worker process.
#include <gmock/gmock.h>

#include <string_view>

#include "tests/workers/misdeeds.h"

int main(int argc, char** argv) {
  const std::string_view argument = argc > 1 ? argv[1] : "";
  if (argument == workers::workerArgument) workers::serveMisdeeds(false);
  if (argument == workers::threadedWorkerArgument) workers::serveMisdeeds(true);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
