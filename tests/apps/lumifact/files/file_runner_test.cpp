// SPDX-License-Identifier: MIT
#include "apps/lumifact/files/file_runner.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

namespace lumifact::tool {
namespace {

// Gives the numbers below `count` as names.
std::function<std::optional<FileItem>()> numbers(int count) {
  return [count, next = 0]() mutable -> std::optional<FileItem> {
    if (next == count) return std::nullopt;
    return FileItem{std::to_string(next++), std::nullopt};
  };
}

std::string resultOf(const FileOutcome& outcome) {
  return outcome.result ? outcome.result->text : "error " + outcome.result.error().reason;
}

constexpr unsigned threadCounts[] = {1, 2, 3, 8};

TEST(FileRunner, KeepsTheOrderWhateverTakesHowLong) {
  for (const unsigned threads : threadCounts) {
    for (const int count : {0, 1, 7, 8, 9, 16, 500}) {
      std::vector<std::string> results;
      runFiles({.next = numbers(count),
                .work = [](const std::string& path) -> model::Result<FileText> {
                  const int number = std::stoi(path);
                  std::this_thread::sleep_for(std::chrono::microseconds(number % 5 == 0 ? 300 : 1));
                  return FileText{path + "!"};
                },
                .emit =
                    [&](const FileOutcome& outcome) {
                      EXPECT_EQ(resultOf(outcome), outcome.path + "!");
                      results.push_back(outcome.path);
                      return true;
                    },
                .threads = threads});
      ASSERT_EQ(results.size(), static_cast<std::size_t>(count)) << threads;
      for (int number = 0; number < count; ++number) {
        ASSERT_EQ(results[static_cast<std::size_t>(number)], std::to_string(number)) << threads;
      }
    }
  }
}

TEST(FileRunner, ErrorsAndExceptionsStandInTheirPlace) {
  for (const unsigned threads : threadCounts) {
    int next = 0;
    std::vector<std::string> results;
    runFiles({.next = [&]() -> std::optional<FileItem> {
                if (next == 30) return std::nullopt;
                ++next;
                if (next % 3 == 0) return FileItem{"x", model::Error{"no file"}};
                return FileItem{next % 3 == 1 ? "good" : "throws", std::nullopt};
              },
              .work = [](const std::string& path) -> model::Result<FileText> {
                if (path == "throws") throw std::runtime_error("thrown");
                return FileText{path};
              },
              .emit =
                  [&](const FileOutcome& outcome) {
                    results.push_back(resultOf(outcome));
                    return true;
                  },
              .threads = threads});
    ASSERT_EQ(results.size(), 30U);
    for (std::size_t index = 0; index < results.size(); index += 3) {
      EXPECT_EQ(results[index], "good");
      EXPECT_EQ(results[index + 1], "error thrown");
      EXPECT_EQ(results[index + 2], "error no file");
    }
  }
}

TEST(FileRunner, StopsWhenNobodyWantsMore) {
  for (const unsigned threads : threadCounts) {
    int emitted = 0;
    std::atomic<int> worked = 0;
    runFiles({.next = numbers(1'000'000),
              .work = [&](const std::string& path) -> model::Result<FileText> {
                ++worked;
                return FileText{path};
              },
              .emit = [&](const FileOutcome&) { return ++emitted < 20; },
              .threads = threads});
    EXPECT_EQ(emitted, 20) << threads;
    EXPECT_LT(worked, 1000) << threads;
  }
}

TEST(FileRunner, RunsOnlyAFewFilesAhead) {
  std::atomic<int> worked = 0;
  int emitted = 0;
  int furthest = 0;
  runFiles({.next = numbers(5000),
            .work = [&](const std::string& path) -> model::Result<FileText> {
              ++worked;
              return FileText{path};
            },
            .emit =
                [&](const FileOutcome&) {
                  furthest = std::max(furthest, worked.load() - emitted++);
                  return true;
                },
            .threads = 4});
  EXPECT_LE(furthest, 4 * 3 * 32);
}

TEST(FileRunner, OneThreadEmitsEachFileBeforeItAsksForTheNext) {
  int asked = 0;
  int emitted = 0;
  runFiles(
      {.next = [&]() -> std::optional<FileItem> {
         EXPECT_EQ(asked, emitted);
         if (asked == 20) return std::nullopt;
         ++asked;
         return FileItem{"x", std::nullopt};
       },
       .work = [](const std::string& path) -> model::Result<FileText> { return FileText{path}; },
       .emit =
           [&](const FileOutcome&) {
             ++emitted;
             return true;
           },
       .threads = 1});
  EXPECT_EQ(emitted, 20);
}

}  // namespace
}  // namespace lumifact::tool
