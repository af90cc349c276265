// SPDX-License-Identifier: MIT
#include "media/movie/other/container_reader.h"

#include "io/on_demand_module.h"
#include "media/movie/other/asset_message.h"
#include "media/movie/other/container_limits.h"
#include "workers/worker_pool.h"

namespace media::movie {

namespace {

constexpr char containerReaderProgram[] = "media_container_reader";

// Null where the reader is not installed. Never destroyed, since threads may still ask when the
// program ends; the readers end with it.
workers::WorkerPool* readers() {
  static const std::string program = io::fileBesideModules(containerReaderProgram);
  static auto& pool = *new workers::WorkerPool({.command = {program},
                                                .workers = containerLimits.readers,
                                                .processorTime = containerLimits.processorTime,
                                                .longestAnswer = containerLimits.answerBytes});
  return program.empty() ? nullptr : &pool;
}

}  // namespace

model::Result<std::optional<MovieFile>> readOtherContainer(const io::FileSource& file) {
  workers::WorkerPool* const pool = readers();
  if (pool == nullptr) return std::optional<MovieFile>();
  std::optional<ContainerAnswer> answer;
  const auto failure = pool->ask(readOrder, file.descriptor(), [&](const auto& bytes) {
    answer = answerOfBytes(bytes);
    return answer && answer->kind != ContainerAnswer::Kind::tooMuch;
  });
  if (answer && answer->kind == ContainerAnswer::Kind::tooMuch)
    return model::Error{"too much for a reader"};
  if (failure) return model::Error{"its reader " + failure->reason};
  if (answer->kind == ContainerAnswer::Kind::none) return std::optional<MovieFile>();
  return std::optional(MovieFile{std::move(answer->asset), textOfCuts(*answer)});
}

}  // namespace media::movie
