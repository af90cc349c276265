// SPDX-License-Identifier: MIT
//
// Options that all commands have are defined on the application, and fall through from a command
// to it, so they may stand before or behind the command's name. A command's own options are only
// defined when it is met, which keeps the start short.
#include "apps/lumifact/command_line/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>
#include <utility>

#include "apps/lumifact/command_line/help_text.h"
#include "apps/lumifact/command_line/time_zone.h"
#include "apps/lumifact/commands/commands.h"

namespace lumifact::tool {

namespace {

constexpr unsigned mostJobs = 256;
constexpr const char* versionText = "lumifact " LUMIFACT_VERSION "\n";

// Arguments that are no options, whatever they look like, carry this in front while the parser has
// them: those behind "--", and those that the parser would take for more than a text.
constexpr char protection = '\x01';

std::vector<std::string> protectedArguments(const std::vector<std::string>& arguments) {
  std::vector<std::string> result;
  bool areWords = false;
  for (const std::string& argument : arguments) {
    const bool isDashes = !areWords && argument == "--";
    const bool isList = argument.starts_with('[') && argument.ends_with(']');
    if (!isDashes)
      result.push_back(areWords || isList || argument == "++" ? protection + argument : argument);
    areWords = areWords || isDashes;
  }
  return result;
}

std::string unprotected(const std::string& argument) {
  return argument.starts_with(protection) ? argument.substr(1) : argument;
}

void addText(CLI::App& app, const std::string& name, std::optional<std::string>& into) {
  app.add_option_function<std::string>(
      name, [&into](const std::string& text) { into = unprotected(text); });
}

template <typename Number>
CLI::Option* addNumber(CLI::App& app, const std::string& name, std::optional<Number>& into) {
  return app.add_option_function<Number>(name, [&into](const Number& number) { into = number; });
}

// Defines what stands behind the command without being an option.
void addWords(CLI::App& app, std::vector<std::string>& into) {
  app.add_option_function<std::vector<std::string>>(
      "WORDS", [&into](const std::vector<std::string>& words) {
        std::transform(words.begin(), words.end(), std::back_inserter(into), unprotected);
      });
}

// A digit is taken for a negative number unless the command itself has it as an option.
void addZeroFlag(CLI::App& app, Options& options) {
  app.add_flag("-0,--null", options.listsEndInZero);
}

void addCommonOptions(CLI::App& app, Options& options) {
  app.add_flag("-r,--recursive", options.isRecursive);
  addText(app, "--files-from", options.filesFrom);
  addZeroFlag(app, options);
  addNumber(app, "-j,--jobs", options.jobs)->check(CLI::Range(1U, mostJobs));
  addText(app, "--settings", options.settingsFile);
  addNumber(app, "--map-type", options.mapType);
  addNumber(app, "--map-zoom", options.mapZoomLevel);
  addNumber(app, "--map-view", options.mapViewType);
  addText(app, "--locale", options.locale);
  addText(app, "--time-zone", options.timeZone);
  addText(app, "--root", options.root);
}

void addFiles(CLI::App& command, Options& options) {
  addWords(command, options.files);
}

void addReportOptions(CLI::App& command, Options& options) {
  addFiles(command, options);
  command.add_flag("--json", options.json);
}

void addQuickInfoOptions(CLI::App& command, Options& options) {
  addFiles(command, options);
  command.add_flag("--compact", options.compact);
}

void addCaptionOptions(CLI::App& command, Options& options) {
  addFiles(command, options);
  addNumber(command, "--display", options.display);
}

void addMapLinkOptions(CLI::App& command, Options& options) {
  addFiles(command, options);
  addText(command, "--coordinates", options.coordinates);
  const auto store = [&options](const std::vector<double>& degrees) {
    options.location = model::Location{degrees[0], degrees[1]};
  };
  command.add_option_function<std::vector<double>>("--location", store)->expected(2);
}

void addParseOptions(CLI::App& command, Options& options) {
  addWords(command, options.words);
  addText(command, "--plist", options.propertyList);
}

void addBrowseOptions(CLI::App& command, Options& options) {
  addWords(command, options.words);
}

void addSettingsOptions(CLI::App& command, Options& options) {
  addWords(command, options.words);
  command.add_flag("--unset", options.unset);
}

// Checks on what was given; each answers what is wrong, or an empty text.
std::string checkFiles(Options& options) {
  if (options.files.empty() && !options.filesFrom) return "no FILE given";
  return {};
}

std::string checkOneFile(Options& options) {
  if (options.filesFrom || options.isRecursive) return "takes one FILE, no list and no folder";
  return options.files.size() == 1 ? "" : "takes one FILE";
}

std::string checkMapLink(Options& options) {
  if (!options.coordinates && !options.location) return checkOneFile(options);
  return options.files.empty() ? "" : "takes FILE or a place, not both";
}

std::string checkParse(Options& options) {
  if (options.words.size() != 1 || (options.words[0] != "image" && options.words[0] != "video")) {
    return "takes image or video";
  }
  options.parseKind = options.words[0] == "image" ? ParseKind::image : ParseKind::video;
  return {};
}

std::string checkBrowse(Options& options) {
  return options.words.size() > 1 ? "takes one FOLDER" : "";
}

std::string checkSettings(Options& options) {
  const std::vector<std::string>& words = options.words;
  const std::string action = words.empty() ? "" : words[0];
  if (options.unset != (action == "set" && words.size() == 2)) {
    return options.unset ? "--unset goes with set KEY" : "set takes KEY and VALUE, or KEY --unset";
  }
  if (words.size() > 1) options.key = words[1];
  if (words.size() > 2) options.value = words[2];
  const auto is = [&](const char* name, std::size_t count) {
    return action == name && words.size() == count;
  };
  if (words.empty()) {
    options.action = SettingsAction::list;
  } else if (is("get", 2)) {
    options.action = SettingsAction::get;
  } else if (is("set", 2)) {
    options.action = SettingsAction::unset;
  } else if (is("set", 3)) {
    options.action = SettingsAction::set;
  } else if (is("reset", 1)) {
    options.action = SettingsAction::reset;
  } else {
    return "takes get KEY, set KEY VALUE, set KEY --unset, reset, or nothing";
  }
  return {};
}

struct CommandRow {
  const char* name;
  void (*define)(CLI::App& command, Options& options);
  std::string (*check)(Options& options);
  void (*run)(const Options& options, Console& console);
};

constexpr CommandRow rows[] = {
    {"report", addReportOptions, checkFiles, runReport},
    {"properties", addFiles, checkFiles, runProperties},
    {"table", addFiles, checkOneFile, runTable},
    {"quick-info", addQuickInfoOptions, checkFiles, runQuickInfo},
    {"caption", addCaptionOptions, checkFiles, runCaption},
    {"size", addFiles, checkFiles, runSize},
    {"map-link", addMapLinkOptions, checkMapLink, runMapLink},
    {"parse", addParseOptions, checkParse, runParse},
    {"browse", addBrowseOptions, checkBrowse, runBrowse},
    {"settings", addSettingsOptions, checkSettings, runSettings},
};

std::string checkCommon(const Options& options) {
  if (options.timeZone && !timeZoneExists(*options.timeZone)) {
    return "unknown time zone \"" + *options.timeZone + "\"";
  }
  if (options.listsEndInZero && !options.filesFrom) return "--null goes with --files-from";
  return {};
}

void finish(const CommandRow& row, CommandLine& line) {
  std::string error = line.usageError.empty() ? checkCommon(line.options) : line.usageError;
  if (error.empty()) error = row.check(line.options);
  line.run = row.run;
  if (error.empty()) return;
  line.usageError =
      std::string(row.name) + ": " + error + " (see lumifact " + row.name + " --help)";
}

std::string unknownWord(const char* kind, const std::string& word) {
  return std::string("unknown ") + (word.starts_with('-') ? "option" : kind) + " \"" + word + "\"";
}

// What is wrong, in the words of the parser, to stand behind "lumifact: ".
std::string reasonOf(const CLI::ParseError& error, const CLI::App& app) {
  const std::vector<std::string> unknown = app.remaining();
  std::string reason = error.what();
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
    reason = unknown.empty() ? "no command given" : unknownWord("command", unknown[0]);
  } else if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr && !unknown.empty()) {
    reason = unknownWord("word", unknown[0]);
  }
  std::erase(reason, protection);
  return reason;
}

void parse(CLI::App& app, const std::vector<std::string>& arguments, CommandLine& line) {
  std::vector<std::string> reversed = protectedArguments(arguments);
  std::reverse(reversed.begin(), reversed.end());
  try {
    app.parse(std::move(reversed));
  } catch (const CLI::CallForHelp&) {
    const auto commands = app.get_subcommands();
    line.text = helpText(commands.empty() ? "" : commands.front()->get_name());
  } catch (const CLI::CallForVersion&) {
    line.text = versionText;
  } catch (const CLI::ParseError& error) {
    line.usageError = reasonOf(error, app);
  }
}

}  // namespace

CommandLine readCommandLine(const std::vector<std::string>& arguments) {
  CommandLine line;
  CLI::App app;
  app.set_help_flag("-h,--help");
  app.set_version_flag("--version", versionText);
  app.require_subcommand(1);
  app.fallthrough();
  addCommonOptions(app, line.options);
  const CommandRow* chosen = nullptr;
  for (const CommandRow& row : rows) {
    CLI::App* command = app.add_subcommand(row.name);
    command->preparse_callback([&line, &row, &chosen, command](std::size_t) {
      chosen = &row;
      addZeroFlag(*command, line.options);
      row.define(*command, line.options);
    });
  }
  parse(app, arguments, line);
  if (!line.text.empty()) return line;
  if (chosen != nullptr) {
    finish(*chosen, line);
  } else {
    line.usageError += " (see lumifact --help)";
  }
  return line;
}

}  // namespace lumifact::tool
