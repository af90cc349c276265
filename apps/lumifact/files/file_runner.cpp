// SPDX-License-Identifier: MIT
//
// The calling thread gathers files into batches, hands the batches to the workers in order and
// takes them back in the same order from a ring: a batch is reused as soon as its outcomes have
// been emitted, so the ring's length bounds how far the workers run ahead.
#include "apps/lumifact/files/file_runner.h"

#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace lumifact::tool {

namespace {

constexpr std::size_t filesInFirstBatches = 8;
constexpr std::size_t filesInLaterBatches = 32;
constexpr std::size_t batchesPerThread = 3;  // one at work, one waiting, one being emitted

FileOutcome outcomeOf(const FileRun& run, FileItem item) {
  if (item.error) return {std::move(item.path), *item.error};
  try {
    auto result = run.work(item.path);
    return {std::move(item.path), std::move(result)};
  } catch (const std::exception& exception) {
    return {std::move(item.path), model::Error{exception.what()}};
  }
}

struct Batch {
  std::vector<FileItem> items;
  std::vector<FileOutcome> outcomes;
  bool isDone = false;
};

// Refills a batch.
void fill(Batch& batch, const FileRun& run, std::size_t count) {
  batch.items.clear();
  batch.isDone = false;
  while (batch.items.size() < count) {
    auto item = run.next();
    if (!item) break;
    batch.items.push_back(*std::move(item));
  }
}

bool emitAll(const FileRun& run, const Batch& batch) {
  for (const FileOutcome& outcome : batch.outcomes) {
    if (!run.emit(outcome)) return false;
  }
  return true;
}

void runOnThisThread(const FileRun& run, std::vector<FileItem> first) {
  for (FileItem& item : first) {
    if (!run.emit(outcomeOf(run, std::move(item)))) return;
  }
  while (auto item = run.next()) {
    if (!run.emit(outcomeOf(run, *std::move(item)))) return;
  }
}

// The batches on their way, in order, and the threads that work on them.
class Workers {
 public:
  explicit Workers(const FileRun& run) : _run(run) {
    try {
      while (_threads.size() < run.threads) _threads.emplace_back([this] { work(); });
    } catch (const std::system_error&) {
      // As many as the system allows; none is told by capacity().
    }
  }
  ~Workers() {
    {
      const std::lock_guard lock(_mutex);
      _isStopping = true;
    }
    _batchIsWaiting.notify_all();
    for (std::thread& thread : _threads) thread.join();
  }
  Workers(const Workers&) = delete;
  Workers& operator=(const Workers&) = delete;

  std::size_t capacity() const { return _threads.size() * batchesPerThread; }
  std::size_t size() const { return _batches.size(); }

  void put(Batch batch) {
    {
      const std::lock_guard lock(_mutex);
      _batches.push_back(std::move(batch));
      ++_waiting;
    }
    _batchIsWaiting.notify_one();
  }
  // Waits for the oldest batch and takes it out. REQUIRES: size() > 0.
  Batch take() {
    std::unique_lock lock(_mutex);
    _batchIsDone.wait(lock, [this] { return _batches.front().isDone; });
    Batch batch = std::move(_batches.front());
    _batches.pop_front();
    return batch;
  }

 private:
  void work() {
    std::unique_lock lock(_mutex);
    for (;;) {
      _batchIsWaiting.wait(lock, [this] { return _isStopping || _waiting > 0; });
      if (_isStopping) return;
      // A deque keeps its elements in place while others come and go at its ends.
      Batch& batch = _batches[_batches.size() - _waiting--];
      lock.unlock();
      batch.outcomes.clear();
      for (FileItem& item : batch.items) batch.outcomes.push_back(outcomeOf(_run, std::move(item)));
      lock.lock();
      batch.isDone = true;
      _batchIsDone.notify_one();
    }
  }

  const FileRun& _run;
  std::mutex _mutex;
  std::condition_variable _batchIsWaiting;
  std::condition_variable _batchIsDone;
  std::deque<Batch> _batches;
  std::size_t _waiting = 0;  // the last ones of the batches, which nobody works on yet
  bool _isStopping = false;
  std::vector<std::thread> _threads;
};

}  // namespace

void runFiles(const FileRun& run) {
  if (run.threads < 2) return runOnThisThread(run, {});
  Batch batch;
  fill(batch, run, filesInFirstBatches);
  if (batch.items.size() < filesInFirstBatches) return runOnThisThread(run, std::move(batch.items));
  Workers workers(run);
  if (workers.capacity() == 0) return runOnThisThread(run, std::move(batch.items));
  std::size_t size = filesInFirstBatches;
  Batch spent;
  while (!batch.items.empty() || workers.size() > 0) {
    const bool isFull = workers.size() == workers.capacity();
    if (isFull || batch.items.empty()) {
      spent = workers.take();
      if (!emitAll(run, spent)) return;
      size = filesInLaterBatches;
    } else {
      workers.put(std::exchange(batch, std::exchange(spent, {})));
      fill(batch, run, size);
    }
  }
}

}  // namespace lumifact::tool
