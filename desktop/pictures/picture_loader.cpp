// SPDX-License-Identifier: MIT
#include "desktop/pictures/picture_loader.h"

#include <poll.h>

#include <algorithm>
#include <thread>
#include <utility>

namespace desktop::pictures {

namespace {

constexpr int mostWorkers = 4;

}  // namespace

int PictureLoader::defaultWorkerCount() {
  const unsigned processors = std::thread::hardware_concurrency();
  return processors > 2 ? 2 : 1;
}

PictureLoader::PictureLoader(Settings settings)
    : _cache(settings.cacheBytes),
      _pool({.command = std::move(settings.command),
             .workers = std::clamp(settings.workers, 1, mostWorkers),
             .processorTime = settings.processorTime,
             .sleepyLooks = settings.sleepyLooks},
            _news) {}

Ticket PictureLoader::request(const std::string& path, const Request& request, Priority priority,
                              Callback callback) {
  const Ticket ticket{++_lastNumber};
  Claim& claim = _claims[ticket] = {0, priority, std::move(callback)};
  const PictureKey key = PictureKey::ofFile(path, request);
  if (auto picture = _cache.find(key)) {
    _ended.emplace_back(ticket, Outcome{Outcome::Kind::decoded, std::move(picture), {}});
    _news.signal();
    return ticket;
  }
  if (const auto same = _jobByKey.find(key); same != _jobByKey.end()) {
    claim.job = same->second;
    _jobs[claim.job].tickets.push_back(ticket);
    updateUrgency(claim.job);
    return ticket;
  }
  claim.job = ++_lastNumber;
  _jobs[claim.job] = {key, {ticket}};
  _jobByKey[key] = claim.job;
  _pool.submit(claim.job, {key.path, request}, static_cast<int>(priority));
  return ticket;
}

void PictureLoader::cancel(Ticket ticket) {
  const auto claim = _claims.extract(ticket);
  if (claim.empty()) return;
  const auto job = _jobs.find(claim.mapped().job);
  if (job == _jobs.end()) return;
  std::erase(job->second.tickets, ticket);
  if (!job->second.tickets.empty()) return updateUrgency(job->first);
  // What was begun is finished, and kept for the next who asks.
  if (!_pool.withdraw(job->first)) return;
  _jobByKey.erase(job->second.key);
  _jobs.erase(job);
}

void PictureLoader::setPriority(Ticket ticket, Priority priority) {
  const auto claim = _claims.find(ticket);
  if (claim == _claims.end()) return;
  claim->second.priority = priority;
  updateUrgency(claim->second.job);
}

// A job is as urgent as the most urgent of its tickets.
void PictureLoader::updateUrgency(JobNumber job) {
  const auto found = _jobs.find(job);
  if (found == _jobs.end() || found->second.tickets.empty()) return;
  Priority priority = Priority::later;
  for (const Ticket ticket : found->second.tickets)
    priority = std::min(priority, _claims.at(ticket).priority);
  _pool.setUrgency(job, static_cast<int>(priority));
}

SharedPicture PictureLoader::find(const std::string& path, const Request& request) {
  return _cache.find(PictureKey::ofFile(path, request));
}

void PictureLoader::end(JobNumber number, const Outcome& outcome) {
  const auto job = _jobs.extract(number);
  if (job.empty()) return;
  const Job& ended = job.mapped();
  _jobByKey.erase(ended.key);
  if (outcome.picture) _cache.put(ended.key, outcome.picture);
  for (const Ticket ticket : ended.tickets) _ended.emplace_back(ticket, outcome);
}

void PictureLoader::deliverFinished() {
  _news.clear();
  for (const auto& finished : _pool.takeFinished()) end(finished.job, finished.outcome);
  // What callbacks ask for now, and is at hand, comes in the next turn.
  for (std::size_t count = _ended.size(); count > 0 && !_ended.empty(); --count) {
    const auto [ticket, outcome] = std::move(_ended.front());
    _ended.pop_front();
    const auto claim = _claims.extract(ticket);
    if (!claim.empty()) claim.mapped().callback(outcome);
  }
}

bool PictureLoader::waitUntilIdle(std::chrono::milliseconds timeout) {
  const auto deadline = std::chrono::steady_clock::now() + timeout;
  while (true) {
    deliverFinished();
    if (_claims.empty()) return true;
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    if (left.count() <= 0) return false;
    pollfd news{wakeDescriptor(), POLLIN, 0};
    poll(&news, 1, static_cast<int>(left.count()));
  }
}

}  // namespace desktop::pictures
