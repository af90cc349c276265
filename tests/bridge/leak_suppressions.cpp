// SPDX-License-Identifier: MIT
//
// The object runtime and Foundation keep a few kilobytes for the life of the process. The leak
// checker is told so for those two libraries alone; objects of our own are counted instead.

// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is the leak checker's.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions() {
  return "leak:libobjc.so\nleak:libgnustep-base.so\n";
}
