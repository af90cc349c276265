// SPDX-License-Identifier: MIT
//
// A worker is sent its job at once and says that it is ready before it begins, so that what it
// takes to start does not count as the picture's. A worker that dies has its job done once more by
// a fresh one: what killed it may have been the file before, or somebody from outside. The second
// death is the file's. The thread looks at the workers that have jobs many times a second; how long
// they take by the clock on the wall does not matter.
#include "desktop/pictures/workers/decoder_pool.h"

#include <poll.h>
#include <pthread.h>

#include <algorithm>
#include <csignal>
#include <utility>

#include "desktop/pictures/pixels/limits.h"
#include "desktop/pictures/workers/decoder_messages.h"
#include "io/byte_source.h"
#include "workers/greeting.h"
#include "workers/message.h"

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

void DecoderPool::submit(JobNumber job, PictureOrder order, int urgency) {
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
    watchAll();
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
  const PictureOrder& order = worker.job->order;
  // Workers get open files: a path is none of theirs.
  const auto file = io::FileSource::open(order.path);
  if (!file) return finish(worker, {.reason = file.error().reason});
  if (!worker.process.isRunning() && !start(worker)) return;
  watchOver(worker);
  const std::string name = order.path.substr(order.path.rfind('/') + 1);
  const bool isSent = sendOrder(worker.process.socket(), {.name = name, .request = order.request},
                                (*file)->descriptor());
  if (!isSent) replaceCrashed(worker);
}

bool DecoderPool::start(Worker& worker) {
  worker.isReady = false;
  const auto error = worker.process.start(_settings.command, workers::Frame::given);
  if (error) finish(worker, {.reason = "the decoder cannot be started: " + error->reason});
  return !error;
}

void DecoderPool::watchOver(Worker& worker) const {
  worker.watch =
      workers::WorkerWatch(worker.process.number(), _settings.processorTime, _settings.sleepyLooks);
}

void DecoderPool::wait() {
  std::vector<pollfd> sources{{_wake.number(), POLLIN, 0}};
  bool isAnyAtWork = false;
  for (const Worker& worker : _workers) {
    sources.push_back({worker.process.socket(), POLLIN, 0});
    isAnyAtWork |= worker.job.has_value();
  }
  const int timeout = isAnyAtWork ? static_cast<int>(workers::WorkerWatch::interval.count()) : -1;
  if (poll(sources.data(), sources.size(), timeout) <= 0) return;
  if (sources[0].revents != 0) _wake.clear();
  for (std::size_t index = 0; index < _workers.size(); ++index) {
    if (sources[index + 1].revents != 0) hear(_workers[index]);
  }
}

void DecoderPool::hear(Worker& worker) {
  if (worker.isReady) return hearAnswer(worker);
  const auto message = workers::receiveMessage(worker.process.socket(), workers::longestGreeting,
                                               workers::Guests::refused);
  if (!message || !workers::acceptGreeting(message->bytes)) return replaceCrashed(worker);
  worker.isReady = true;
  watchOver(worker);
}

void DecoderPool::hearAnswer(Worker& worker) {
  const auto answer = receiveAnswer(worker.process.socket());
  if (!answer || !worker.job) return replaceCrashed(worker);
  if (answer->kind != DecodeAnswer::Kind::decoded)
    return finish(worker, {.reason = answer->reason});
  auto picture = readPixels(*answer, worker.process.frame());
  if (!picture) return fail(worker, "damaged answer");
  worker.process.emptyFrame();
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

void DecoderPool::fail(Worker& worker, const char* reason, Outcome::Kind kind) {
  worker.process.stop();
  worker.isReady = false;
  finish(worker, {.kind = kind, .reason = reason});
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

void DecoderPool::watchAll() {
  using Finding = workers::WorkerWatch::Finding;
  const auto now = Clock::now();
  if (now < _nextLook) return;
  _nextLook = now + workers::WorkerWatch::interval;
  for (Worker& worker : _workers) {
    const Finding finding = worker.job ? worker.watch.look() : Finding::atWork;
    if (finding == Finding::atWork) continue;
    if (!worker.isReady) {
      fail(worker, "the decoder does not start");
    } else if (finding == Finding::spent) {
      fail(worker, "decoding took too long", Outcome::Kind::timedOut);
    } else {
      fail(worker, "the decoder fell asleep", Outcome::Kind::timedOut);
    }
  }
}

}  // namespace desktop::pictures
