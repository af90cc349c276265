// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/terminal/console.h"
#include "apps/lumifact/texts/environment.h"
#include "io/own_files.h"

namespace lumifact::tool {

namespace {

constexpr const Option* takenOptions[] = {&option::locale, &option::timeZone, &option::root};

std::string photoApplication() {
  return io::ownFile("apps/photohost/photohost", LUMIFACT_PROGRAM_DIR "/photohost");
}

std::string extension() {
  return io::ownFile("extensions/lumifact.so", LUMIFACT_EXTENSION_DIR "/lumifact.so");
}

std::vector<std::string> argumentsOf(const Options& options, const std::string& application) {
  std::vector<std::string> arguments = {application, "--extensions",
                                        std::filesystem::path(extension()).parent_path(), "--root",
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
  if (extension().empty()) return console.fail("lumifact.so", "the extension is missing");
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
