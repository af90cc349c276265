// SPDX-License-Identifier: MIT
//
// Pictures for a program that must not wait for them, nor end with a decoder: they are decoded by
// worker processes, and handed out in the program's own main loop.
//
//   PictureLoader loader({.command = {"/proc/self/exe", "--decode-pictures"}});
//   const Ticket ticket = loader.request(path, {200, 200, Request::Fit::fill}, Priority::visible,
//                                        [](const Outcome& outcome) { ... });
//   // whenever loader.wakeDescriptor() is readable:
//   loader.deliverFinished();
//
// All functions are called from one thread.
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "desktop/pictures/picture_cache.h"
#include "desktop/pictures/workers/decoder_pool.h"
#include "desktop/pictures/workers/outcome.h"

namespace desktop::pictures {

// Which come first; of the same priority, those that were asked for first.
enum class Priority { visible, soon, later };

// One request. Never 0, so that 0 can stand for none.
enum class Ticket : std::uint64_t {};

class PictureLoader {
 public:
  using Callback = std::function<void(const Outcome& outcome)>;

  struct Settings {
    // How a worker is started: a path, which may be "/proc/self/exe", and arguments that make the
    // program call serveDecoder(decoderSocket).
    std::vector<std::string> command;
    int workers = defaultWorkerCount();               // 1 to 4
    std::chrono::milliseconds processorTime{10'000};  // of a worker, for one picture
    int sleepyLooks = workers::WorkerWatch::sleepyLooks;
    std::size_t cacheBytes = std::size_t{96} << 20;
  };
  // One fewer than there are processors, 1 or 2.
  static int defaultWorkerCount();

  explicit PictureLoader(Settings settings);
  // Ends the workers. Requests that are not delivered never are.
  ~PictureLoader() = default;
  PictureLoader(const PictureLoader&) = delete;
  PictureLoader& operator=(const PictureLoader&) = delete;

  // Asks for a picture. The callback is called once, out of deliverFinished() or waitUntilIdle(),
  // never out of this call, even where the picture is at hand. It may ask, cancel and so on, but
  // not destroy the loader.
  Ticket request(const std::string& path, const Request& request, Priority priority,
                 Callback callback);
  // The callback is not called any more. No effect on tickets that were delivered.
  void cancel(Ticket ticket);
  void setPriority(Ticket ticket, Priority priority);

  // The picture if it is at hand, without waiting: null where it is not, or the file has changed.
  SharedPicture find(const std::string& path, const Request& request);

  // Readable when there is something to deliver. Owned by the loader.
  int wakeDescriptor() const { return _news.number(); }
  // Calls the callbacks of all requests that have ended. Never waits.
  void deliverFinished();
  // Delivers until every request has ended; false where that takes longer. For programs without a
  // main loop.
  bool waitUntilIdle(std::chrono::milliseconds timeout);

 private:
  using JobNumber = DecoderPool::JobNumber;
  // Tickets for the same picture share a job.
  struct Job {
    PictureKey key;
    std::vector<Ticket> tickets;  // none: all were cancelled after it had begun
  };
  struct Claim {
    JobNumber job;  // 0: the outcome was at hand
    Priority priority;
    Callback callback;
  };

  void join(JobNumber job, Ticket ticket);
  void updateUrgency(JobNumber job);
  void end(JobNumber job, const Outcome& outcome);

  WakeDescriptor _news;
  PictureCache _cache;
  std::uint64_t _lastNumber = 0;  // of tickets and jobs
  std::map<Ticket, Claim> _claims;
  std::map<JobNumber, Job> _jobs;
  std::map<PictureKey, JobNumber> _jobByKey;
  std::deque<std::pair<Ticket, Outcome>> _ended;
  DecoderPool _pool;  // last: it signals the first
};

}  // namespace desktop::pictures
