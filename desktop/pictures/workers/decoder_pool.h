// SPDX-License-Identifier: MIT
//
// A few worker processes and the thread that feeds them: each has one job at a time, and is killed
// and replaced when it crashes or takes too long.
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
#include "desktop/pictures/workers/worker_process.h"

namespace desktop::pictures {

struct PoolSettings {
  std::vector<std::string> command;     // of a worker; the first word is a path
  int workers;                          // processes at most
  std::chrono::milliseconds timeLimit;  // for one picture
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
  void submit(JobNumber job, DecodeOrder order, int urgency);
  // No effect on jobs that were begun.
  void setUrgency(JobNumber job, int urgency);
  // Whether the job was taken out; false where it was begun already.
  bool withdraw(JobNumber job);

  // What was finished since the last call.
  std::vector<Finished> takeFinished();

 private:
  using Clock = std::chrono::steady_clock;
  struct Waiting {
    DecodeOrder order;
    int urgency;
  };
  struct Job {
    JobNumber number;
    DecodeOrder order;
    bool isSecondTry = false;
  };
  struct Worker {
    WorkerProcess process = {};
    bool isReady = false;  // said so
    std::optional<Job> job = {};
    Clock::time_point deadline = {};  // for becoming ready, then for the job
  };

  // All below run on the pool's own thread.
  void run();
  void assignJobs();
  std::optional<Job> nextJob();
  void begin(Worker& worker, Job job);
  void wait();
  void hear(Worker& worker);
  void takeAnswer(Worker& worker, const DecodeAnswer& answer);
  void replaceCrashed(Worker& worker);
  void finish(Worker& worker, Outcome outcome);
  void stopLate();
  bool isStopping();

  const PoolSettings _settings;
  WakeDescriptor& _news;
  WakeDescriptor _wake;  // of the thread
  std::vector<Worker> _workers;

  std::mutex _mutex;  // guards what follows
  std::map<JobNumber, Waiting> _waiting;
  std::set<std::pair<int, JobNumber>> _order;  // of the waiting: urgency, number
  std::vector<Finished> _finished;
  std::size_t _finishedBytes = 0;
  bool _isStopping = false;

  std::thread _thread;  // last: it uses all the others
};

}  // namespace desktop::pictures
