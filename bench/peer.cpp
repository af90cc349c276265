// SPDX-License-Identifier: MIT
#include "bench/peer.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

extern char** environ;

namespace bench {

namespace {

model::Value valueOf(const nlohmann::json& json) {
  switch (json.type()) {
    case nlohmann::json::value_t::boolean:
      return json.get<bool>();
    case nlohmann::json::value_t::number_integer:
    case nlohmann::json::value_t::number_unsigned:
      return json.get<std::int64_t>();
    case nlohmann::json::value_t::number_float:
      return json.get<double>();
    case nlohmann::json::value_t::string:
      return json.get<std::string>();
    case nlohmann::json::value_t::array: {
      model::Array array;
      for (const auto& element : json) array.push_back(valueOf(element));
      return array;
    }
    case nlohmann::json::value_t::object: {
      model::Dictionary dictionary;
      for (const auto& [key, value] : json.items()) dictionary[key] = valueOf(value);
      return dictionary;
    }
    default:
      return {};
  }
}

}  // namespace

bool isInstalled(const std::string& program) {
  const char* path = std::getenv("PATH");
  std::istringstream folders(path == nullptr ? "" : path);
  for (std::string folder; std::getline(folders, folder, ':');) {
    if (::access(folder.append("/").append(program).c_str(), X_OK) == 0) return true;
  }
  return false;
}

std::optional<std::string> outputOf(const std::vector<std::string>& arguments) {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) return std::nullopt;
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  ::posix_spawn_file_actions_addclose(&actions, ends[0]);
  ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  std::vector<char*> pointers;
  pointers.reserve(arguments.size() + 1);
  for (const auto& argument : arguments) pointers.push_back(const_cast<char*>(argument.c_str()));
  pointers.push_back(nullptr);
  pid_t child = 0;
  const int failed =
      ::posix_spawnp(&child, pointers[0], &actions, nullptr, pointers.data(), environ);
  ::posix_spawn_file_actions_destroy(&actions);
  ::close(ends[1]);
  std::string output;
  std::array<char, 65536> buffer{};
  for (ssize_t count = 0;
       failed == 0 && (count = ::read(ends[0], buffer.data(), buffer.size())) > 0;) {
    output.append(buffer.data(), static_cast<std::size_t>(count));
  }
  ::close(ends[0]);
  if (failed != 0) return std::nullopt;
  ::waitpid(child, nullptr, 0);
  return output;
}

model::Value parseJson(const std::string& text) {
  const auto json = nlohmann::json::parse(text, nullptr, /*allow_exceptions=*/false);
  return json.is_discarded() ? model::Value() : valueOf(json);
}

}  // namespace bench
