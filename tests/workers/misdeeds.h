// SPDX-License-Identifier: MIT
//
// What a worker does that a file has taken over: the test program as such a worker.
#pragma once

namespace workers {

// The argument of the test program that makes it a worker, and of one that may have threads.
inline constexpr char workerArgument[] = "--work";
inline constexpr char threadedWorkerArgument[] = "--work-with-threads";

inline constexpr int mostMegabytes = 64;  // that such a worker may have

// Confines the process and does what each order says, until nobody gives any more. An order is a
// word. A misdeed that succeeds is answered "done", one that the system refuses "refused".
[[noreturn]] void serveMisdeeds(bool hasThreads);

}  // namespace workers
