// SPDX-License-Identifier: MIT
//
// A worker is sent its job at once and says that it is ready before it begins, so that the time it
// takes to start does not count as the picture's. A worker that dies has its job done once more by
// a fresh one: what killed it may have been the file before, or somebody from outside. The second
// death is the file's.
#include "desktop/pictures/workers/decoder_pool.h"

#include <poll.h>
#include <pthread.h>

#include <algorithm>
#include <csignal>
#include <utility>

#include "desktop/pictures/pixels/limits.h"

namespace desktop::pictures {

DecoderPool::DecoderPool(PoolSettings settings, WakeDescriptor& news)
    : _settings(std::move(settings)), _news(news) {
  _workers.resize(static_cast<std::size_t>(_settings.workers));
  // The program's signals are for its own threads.
  sigset_t all{};
  sigset_t previous{};
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &previous);
  _thread = std::thread([this] { run(); });
  pthread_sigmask(SIG_SETMASK, &previous, nullptr);
}

DecoderPool::~DecoderPool() {
  {
    const std::lock_guard lock(_mutex);
    _isStopping = true;
  }
  _wake.signal();
  _thread.join();
}

void DecoderPool::submit(JobNumber job, DecodeOrder order, int urgency) {
  {
    const std::lock_guard lock(_mutex);
    _waiting.insert_or_assign(job, Waiting{std::move(order), urgency});
    _order.emplace(urgency, job);
  }
  _wake.signal();
}

void DecoderPool::setUrgency(JobNumber job, int urgency) {
  const std::lock_guard lock(_mutex);
  const auto found = _waiting.find(job);
  if (found == _waiting.end()) return;
  _order.erase({found->second.urgency, job});
  found->second.urgency = urgency;
  _order.emplace(urgency, job);
}

bool DecoderPool::withdraw(JobNumber job) {
  const std::lock_guard lock(_mutex);
  const auto found = _waiting.find(job);
  if (found == _waiting.end()) return false;
  _order.erase({found->second.urgency, job});
  _waiting.erase(found);
  return true;
}

std::vector<DecoderPool::Finished> DecoderPool::takeFinished() {
  std::vector<Finished> finished;
  {
    const std::lock_guard lock(_mutex);
    finished.swap(_finished);
    _finishedBytes = 0;
  }
  // The thread may have held back jobs until there is room.
  if (!finished.empty()) _wake.signal();
  return finished;
}

bool DecoderPool::isStopping() {
  const std::lock_guard lock(_mutex);
  return _isStopping;
}

void DecoderPool::run() {
  while (!isStopping()) {
    assignJobs();
    wait();
    stopLate();
  }
  // Workers die with the thread that started them, so they end here.
  _workers.clear();
}

void DecoderPool::assignJobs() {
  for (Worker& worker : _workers) {
    if (worker.job) continue;
    auto job = nextJob();
    if (!job) return;
    begin(worker, *std::move(job));
  }
}

std::optional<DecoderPool::Job> DecoderPool::nextJob() {
  const std::lock_guard lock(_mutex);
  if (_order.empty() || _finishedBytes > limits.untakenBytes) return std::nullopt;
  auto waiting = _waiting.extract(_order.begin()->second);
  _order.erase(_order.begin());
  return Job{waiting.key(), std::move(waiting.mapped().order)};
}

void DecoderPool::begin(Worker& worker, Job job) {
  worker.job = std::move(job);
  const auto now = Clock::now();
  if (worker.isReady) worker.deadline = now + _settings.timeLimit;
  if (!worker.process.isRunning()) {
    worker.isReady = false;
    worker.deadline = now + limits.workerStart;
    if (const auto error = worker.process.start(_settings.command)) {
      finish(worker, {.reason = "the decoder cannot be started: " + error->reason});
      return;
    }
  }
  if (!sendOrder(worker.process.socket(), worker.job->order)) replaceCrashed(worker);
}

void DecoderPool::wait() {
  std::vector<pollfd> sources{{_wake.number(), POLLIN, 0}};
  auto deadline = Clock::time_point::max();
  for (const Worker& worker : _workers) {
    sources.push_back({worker.process.socket(), POLLIN, 0});
    if (worker.job) deadline = std::min(deadline, worker.deadline);
  }
  int timeout = -1;
  if (deadline != Clock::time_point::max()) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    timeout = static_cast<int>(std::max<std::int64_t>(0, left.count()));
  }
  if (poll(sources.data(), sources.size(), timeout) <= 0) return;
  if (sources[0].revents != 0) _wake.clear();
  for (std::size_t index = 0; index < _workers.size(); ++index) {
    if (sources[index + 1].revents != 0) hear(_workers[index]);
  }
}

void DecoderPool::hear(Worker& worker) {
  const auto answer = receiveAnswer(worker.process.socket());
  if (answer && answer->kind == DecodeAnswer::Kind::ready && !worker.isReady) {
    worker.isReady = true;
    worker.deadline = Clock::now() + _settings.timeLimit;
  } else if (answer && worker.isReady && worker.job) {
    takeAnswer(worker, *answer);
  } else {
    replaceCrashed(worker);
  }
}

void DecoderPool::takeAnswer(Worker& worker, const DecodeAnswer& answer) {
  if (answer.kind != DecodeAnswer::Kind::decoded) return finish(worker, {.reason = answer.reason});
  auto picture = readPixels(answer);
  if (!picture) return finish(worker, {.reason = picture.error().reason});
  finish(worker, {.kind = Outcome::Kind::decoded,
                  .picture = std::make_shared<const Picture>(*std::move(picture))});
}

void DecoderPool::replaceCrashed(Worker& worker) {
  worker.process.stop();
  if (!worker.job) return;
  if (!worker.isReady) return finish(worker, {.reason = "the decoder does not start"});
  worker.isReady = false;
  if (worker.job->isSecondTry) return finish(worker, {.reason = "the decoder crashed"});
  worker.job->isSecondTry = true;
  begin(worker, *std::exchange(worker.job, std::nullopt));
}

void DecoderPool::finish(Worker& worker, Outcome outcome) {
  {
    const std::lock_guard lock(_mutex);
    if (outcome.picture) _finishedBytes += outcome.picture->byteCount();
    _finished.push_back({worker.job->number, std::move(outcome)});
  }
  worker.job.reset();
  _news.signal();
}

void DecoderPool::stopLate() {
  const auto now = Clock::now();
  for (Worker& worker : _workers) {
    if (!worker.job || now < worker.deadline) continue;
    worker.process.stop();
    if (worker.isReady) {
      finish(worker, {.kind = Outcome::Kind::timedOut, .reason = "decoding took too long"});
    } else {
      finish(worker, {.reason = "the decoder does not start"});
    }
    worker.isReady = false;
  }
}

}  // namespace desktop::pictures
