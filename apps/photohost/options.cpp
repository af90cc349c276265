// SPDX-License-Identifier: MIT
#include "apps/photohost/options.h"

#include <CLI/CLI.hpp>
#include <charconv>

namespace photohost {
namespace {

constexpr double leastSide = 200;       // points
constexpr double greatestSide = 4'096;  // points

// "WIDTHxHEIGHT" in points.
bool readSize(const std::string& text, CGSize& size) {
  const char* const end = text.data() + text.size();
  const auto width = std::from_chars(text.data(), end, size.width);
  if (width.ec != std::errc() || width.ptr == end || *width.ptr != 'x') return false;
  const auto height = std::from_chars(width.ptr + 1, end, size.height);
  const auto fits = [](double side) { return side >= leastSide && side <= greatestSide; };
  return height.ec == std::errc() && height.ptr == end && fits(size.width) && fits(size.height);
}

void describe(CLI::App& app, Options& options) {
  app.add_option("--library", options.library, "The folder of photos to show")->type_name("FOLDER");
  app.add_option("--extensions", options.extensions, "The folder of extensions to load")
      ->type_name("FOLDER");
  app.add_option("--bundle-id", options.bundleIdentifier, "What extensions see as the host")
      ->type_name("ID")
      ->capture_default_str();
  app.add_option("--root", options.root, "The folder that stands for the device's file system")
      ->type_name("FOLDER");
  app.add_option_function<std::string>(
         "--size",
         [&options](const std::string& text) {
           if (!readSize(text, options.size))
             throw CLI::ValidationError("--size", "takes WIDTHxHEIGHT, each from 200 to 4096");
         },
         "The size of the screen in points")
      ->type_name("WxH")
      ->default_str("375x667");
  app.add_option("--scale", options.scale, "Pixels a point of screenshots")
      ->type_name("1..3")
      ->check(CLI::Range(1.0, 3.0))
      ->capture_default_str();
  auto* const headless =
      app.add_flag("--headless", options.isHeadless, "No display, on a virtual clock");
  app.add_option("--script", options.script, "Commands to run, a line each; - reads them in")
      ->type_name("FILE")
      ->needs(headless);
}

}  // namespace

CommandLine readCommandLine(const std::vector<std::string>& arguments) {
  CommandLine line;
  CLI::App app("Shows a folder of photos and videos", "photohost");
  describe(app, line.options);
  app.set_version_flag("--version", std::string("photohost ") + PHOTOHOST_VERSION);
  try {
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::CallForHelp&) {
    line.text = app.help();
  } catch (const CLI::CallForVersion&) {
    line.text = app.version() + "\n";
  } catch (const CLI::ParseError& error) {
    line.usageError = error.what();
  }
  return line;
}

}  // namespace photohost
