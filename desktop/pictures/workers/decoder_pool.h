// SPDX-License-Identifier: MIT
//
// A few worker processes and the thread that feeds them: each has one job at a time, and is killed
// and replaced when it crashes, takes too much of the processor or falls asleep.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "desktop/pictures/workers/decoder_messages.h"
#include "desktop/pictures/workers/outcome.h"
#include "desktop/pictures/workers/wake_descriptor.h"
#include "workers/worker_process.h"
#include "workers/worker_watch.h"

namespace desktop::pictures {

struct PoolSettings {
  std::vector<std::string> command;         // of a worker; the first word is a path
  int workers;                              // processes at most
  std::chrono::milliseconds processorTime;  // for one picture, and for starting
  int sleepyLooks;                          // see workers::WorkerWatch
};

// A picture that somebody wants.
struct PictureOrder {
  std::string path;
  Request request;
};

// All public functions may be called from one other thread.
class DecoderPool {
 public:
  using JobNumber = std::uint64_t;
  struct Finished {
    JobNumber job;
    Outcome outcome;
  };

  // Signals `news` whenever there is something to take. Processes are started when the first jobs
  // come. REQUIRES: `news` outlives the pool.
  DecoderPool(PoolSettings settings, WakeDescriptor& news);
  // Ends the processes; jobs that are not finished never are.
  ~DecoderPool();
  DecoderPool(const DecoderPool&) = delete;
  DecoderPool& operator=(const DecoderPool&) = delete;

  // Jobs of a smaller urgency number come first, then those with a smaller job number.
  void submit(JobNumber job, PictureOrder order, int urgency);
  // No effect on jobs that were begun.
  void setUrgency(JobNumber job, int urgency);
  // Whether the job was taken out; false where it was begun already.
  bool withdraw(JobNumber job);

  // What was finished since the last call.
  std::vector<Finished> takeFinished();

 private:
  using Clock = std::chrono::steady_clock;
  struct Waiting {
    PictureOrder order;
    int urgency;
  };
  struct Job {
    JobNumber number;
    PictureOrder order;
    bool isSecondTry = false;
  };
  struct Worker {
    workers::WorkerProcess process = {};
    bool isReady = false;  // said so
    std::optional<Job> job = {};
    workers::WorkerWatch watch = {};  // on becoming ready, then on the job
  };

  // All below run on the pool's own thread.
  void run();
  void assignJobs();
  std::optional<Job> nextJob();
  void begin(Worker& worker, Job job);
  bool start(Worker& worker);
  void wait();
  void hear(Worker& worker);
  void hearAnswer(Worker& worker);
  void replaceCrashed(Worker& worker);
  void fail(Worker& worker, const char* reason, Outcome::Kind kind = Outcome::Kind::failed);
  void finish(Worker& worker, Outcome outcome);
  void watchAll();
  void watchOver(Worker& worker) const;
  bool isStopping();

  const PoolSettings _settings;
  WakeDescriptor& _news;
  WakeDescriptor _wake;  // of the thread
  std::vector<Worker> _workers;
  Clock::time_point _nextLook;  // at those at work

  std::mutex _mutex;  // guards what follows
  std::map<JobNumber, Waiting> _waiting;
  std::set<std::pair<int, JobNumber>> _order;  // of the waiting: urgency, number
  std::vector<Finished> _finished;
  std::size_t _finishedBytes = 0;
  bool _isStopping = false;

  std::thread _thread;  // last: it uses all the others
};

}  // namespace desktop::pictures
