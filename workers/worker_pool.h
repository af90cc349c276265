// SPDX-License-Identifier: MIT
//
// A few workers that are asked one thing after the other, each by one thread at a time.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <list>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "model/result.h"
#include "workers/worker_process.h"
#include "workers/worker_watch.h"

namespace workers {

class WorkerPool {
 public:
  struct Settings {
    std::vector<std::string> command;  // of a worker; the first word is a path
    std::size_t workers = 1;           // processes at most; who comes when all are busy waits
    std::chrono::nanoseconds processorTime{};  // for one order, or for starting
    std::size_t longestAnswer = 0;             // bytes
    int sleepyLooks = WorkerWatch::sleepyLooks;
  };
  // Takes an answer, a stranger's bytes; false where no worker in its senses gives such a one, or
  // where this one is used up.
  using Accept = std::function<bool(std::span<const std::uint8_t> answer)>;

  explicit WorkerPool(Settings settings)
      : _settings(std::move(settings)), _most(_settings.workers) {}
  // REQUIRES: nobody asks.
  ~WorkerPool() = default;
  WorkerPool(const WorkerPool&) = delete;
  WorkerPool& operator=(const WorkerPool&) = delete;

  // Hands a worker the order, which is not empty, with the descriptor, and its answer to `accept`.
  // A worker that does not start, as the system has no descriptor or memory left, is done without
  // where there are others. One that dies, says what it must not, takes too much or falls asleep is
  // killed, and the next order has a fresh one; an order whose worker died at it, but had done
  // others before, is given to a fresh one once more. None on success. From any thread.
  //
  // Errors: what the system says of starting one; "does not start"; "crashed"; "took too long";
  // "fell asleep": all can stand behind "its reader ".
  std::optional<model::Error> ask(std::span<const std::uint8_t> order, int descriptor,
                                  const Accept& accept);

 private:
  // How an order ended.
  enum class End { answered, notStarted, died, spent, asleep };
  class Lease;

  // None where the worker did not start, and another one is to be asked.
  std::optional<End> askAny(std::span<const std::uint8_t> order, int descriptor,
                            const Accept& accept);
  // Whether there are other workers; then no more than those are started from now on.
  bool mayDoWithout(Lease& lease);
  End askOnce(WorkerProcess& worker, std::span<const std::uint8_t> order, int descriptor,
              const Accept& accept) const;
  // Waits for a message that `accept` takes.
  End hear(const WorkerProcess& worker, std::size_t longest, const Accept& accept) const;
  End start(WorkerProcess& worker) const;

  const Settings _settings;
  std::mutex _mutex;  // guards what follows
  std::condition_variable _isIdle;
  std::list<WorkerProcess> _idle;  // started or not
  std::size_t _made = 0;
  std::size_t _most;  // that may be made
};

}  // namespace workers
