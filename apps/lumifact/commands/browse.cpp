// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/terminal/console.h"
#include "apps/lumifact/texts/environment.h"

namespace lumifact::tool {

namespace {

namespace fs = std::filesystem;

constexpr const Option* takenOptions[] = {&option::locale, &option::timeZone, &option::root};

// How many folders above the tool's the root of its tree is looked for: an installed tool lies in
// "bin", one of the build tree deeper.
constexpr int longestWayUp = 4;

// The first of the places where there is a file, below a folder at or above the tool's own; empty
// where there is none.
std::string findAbove(std::initializer_list<const char*> places) {
  std::error_code error;
  fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
  for (int step = 0; step <= longestWayUp && !folder.empty(); ++step) {
    for (const char* place : places)
      if (fs::is_regular_file(folder / place, error)) return folder / place;
    if (!folder.has_relative_path()) break;
    folder = folder.parent_path();
  }
  return {};
}

std::string photoApplication() {
  return findAbove({"photohost", "bin/photohost", "apps/photohost/photohost"});
}

std::string extensionFolder() {
  return findAbove({"extensions/lumifact.so", LUMIFACT_EXTENSION_DIR "/lumifact.so"});
}

std::vector<std::string> argumentsOf(const Options& options, const std::string& application) {
  std::vector<std::string> arguments = {application, "--extensions",
                                        fs::path(extensionFolder()).parent_path(), "--root",
                                        rootOf(options).folder()};
  if (!options.words.empty())
    arguments.insert(arguments.end(), {"--library", options.words.front()});
  return arguments;
}

std::optional<model::Error> check(const Options& options) {
  if (options.words.size() <= 1) return std::nullopt;
  return model::Error{"takes one FOLDER"};
}

// The tool becomes the application, and comes back only where that fails.
void run(const Options& options, Console& console) {
  const std::string application = photoApplication();
  if (application.empty()) return console.fail("photohost", "the photo application is missing");
  if (extensionFolder().empty()) return console.fail("lumifact.so", "the extension is missing");
  // The application takes its customs from its variables.
  if (options.locale) ::setenv("LC_ALL", options.locale->c_str(), 1);
  std::vector<std::string> arguments = argumentsOf(options, application);
  std::vector<char*> pointers;
  pointers.reserve(arguments.size() + 1);
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  console.flush();
  ::execv(application.c_str(), pointers.data());
  console.fail(application, std::generic_category().message(errno));
}

}  // namespace

constinit const Command browseCommand{
    .name = "browse",
    .summary = "open a folder in the photo application, with the extension",
    .usage = "[OPTIONS] [FOLDER]",
    .description =
        "Opens the folder, or the pictures folder, in the photo application, with the extension "
        "loaded: open a photo and press the info button, or I, for its report.",
    .options = takenOptions,
    .check = check,
    .run = run};

}  // namespace lumifact::tool
