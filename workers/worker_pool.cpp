// SPDX-License-Identifier: MIT
#include "workers/worker_pool.h"

#include <poll.h>

#include <utility>

#include "workers/greeting.h"
#include "workers/message.h"

namespace workers {

namespace {

const char* reasonOf(int end) {
  constexpr const char* reasons[] = {"", "does not start", "crashed", "took too long",
                                     "fell asleep"};
  return reasons[end];
}

bool isReadable(int socket) {
  pollfd source{socket, POLLIN, 0};
  return poll(&source, 1, static_cast<int>(WorkerWatch::interval.count())) > 0;
}

}  // namespace

// A worker that one thread has to itself. The one used last comes first, so that no more are
// started than are needed.
class WorkerPool::Lease {
 public:
  explicit Lease(WorkerPool& pool) : _pool(pool) {
    std::unique_lock lock(pool._mutex);
    pool._isIdle.wait(lock, [&] { return !pool._idle.empty() || pool._made < pool._most; });
    if (pool._idle.empty()) {
      ++pool._made;
      _worker.emplace_back();
    } else {
      _worker.splice(_worker.begin(), pool._idle, pool._idle.begin());
    }
  }
  ~Lease() {
    {
      const std::lock_guard lock(_pool._mutex);
      _pool._idle.splice(_pool._idle.begin(), _worker);
    }
    _pool._isIdle.notify_one();
  }
  Lease(const Lease&) = delete;
  Lease& operator=(const Lease&) = delete;

  WorkerProcess& worker() { return _worker.front(); }
  void forget() { _worker.clear(); }

 private:
  WorkerPool& _pool;
  std::list<WorkerProcess> _worker;  // one
};

std::optional<model::Error> WorkerPool::ask(std::span<const std::uint8_t> order, int descriptor,
                                            const Accept& accept) {
  std::optional<End> end;
  while (!end) end = askAny(order, descriptor, accept);
  if (end == End::answered) return std::nullopt;
  return model::Error{reasonOf(static_cast<int>(*end))};
}

std::optional<WorkerPool::End> WorkerPool::askAny(std::span<const std::uint8_t> order,
                                                  int descriptor, const Accept& accept) {
  Lease lease(*this);
  WorkerProcess& worker = lease.worker();
  const bool wasRunning = worker.isRunning();
  End end = askOnce(worker, order, descriptor, accept);
  // What killed it may have been the file before, or somebody from outside.
  if (end == End::died && wasRunning) end = askOnce(worker, order, descriptor, accept);
  if (end == End::notStarted && mayDoWithout(lease)) return std::nullopt;
  return end;
}

bool WorkerPool::mayDoWithout(Lease& lease) {
  const std::lock_guard lock(_mutex);
  if (_made == 1) return false;
  _most = --_made;
  lease.forget();
  return true;
}

WorkerPool::End WorkerPool::askOnce(WorkerProcess& worker, std::span<const std::uint8_t> order,
                                    int descriptor, const Accept& accept) const {
  End end = worker.isRunning() ? End::answered : start(worker);
  if (end == End::answered) {
    end = sendMessage(worker.socket(), order, descriptor)
              ? hear(worker, _settings.longestAnswer, accept)
              : End::died;
  }
  if (end != End::answered) worker.stop();
  return end;
}

WorkerPool::End WorkerPool::start(WorkerProcess& worker) const {
  // Somebody from outside may have killed the first before it greeted.
  for (int attempt = 0; attempt < 2; ++attempt) {
    if (worker.start(_settings.command, Frame::none)) return End::notStarted;
    if (hear(worker, longestGreeting, acceptGreeting) == End::answered) return End::answered;
    worker.stop();
  }
  return End::notStarted;
}

WorkerPool::End WorkerPool::hear(const WorkerProcess& worker, std::size_t longest,
                                 const Accept& accept) const {
  WorkerWatch watch(worker.number(), _settings.processorTime, _settings.sleepyLooks);
  while (!isReadable(worker.socket())) {
    const auto finding = watch.look();
    if (finding == WorkerWatch::Finding::spent) return End::spent;
    if (finding == WorkerWatch::Finding::asleep) return End::asleep;
  }
  const auto message = receiveMessage(worker.socket(), longest, Guests::refused);
  if (!message || !accept(message->bytes)) return End::died;
  return End::answered;
}

}  // namespace workers
