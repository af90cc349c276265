// SPDX-License-Identifier: MIT
//
// The commands over whole files, run as a user runs them.
#include <gtest/gtest.h>

#include <filesystem>

#include "apps/lumifact/json/json.h"
#include "foundation/byte_count.h"
#include "tests/apps/lumifact/sample_folder.h"
#include "tests/apps/lumifact/tool_runner.h"

namespace lumifact::tool {
namespace {

// Run without an error, and what was printed.
std::string outputOf(const std::vector<std::string>& arguments) {
  const ToolResult result = runTool(arguments);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.messages, "");
  return result.output;
}

std::string sizeText(const std::string& path) {
  return foundation::byteCountText(static_cast<std::int64_t>(std::filesystem::file_size(path)),
                                   foundation::Locale());
}

std::string headerOf(const std::string& path, const std::string& height, const std::string& width) {
  return path + "\nFile Date: Jan 2, 2020 at 3:04:05 AM\nFile Size: " + sizeText(path) +
         "\nAsset Height: " + height + "\nAsset Width: " + width + "\n";
}

model::Dictionary objectOf(const std::string& json) {
  auto value = parseJson(json);
  EXPECT_TRUE(value) << json << ": " << value.error().reason;
  if (!value || value->asDictionary() == nullptr) return {};
  return *value->asDictionary();
}

std::string textIn(const model::Dictionary& object, std::string_view key) {
  const model::Value* value = model::find(object, key);
  return value == nullptr || value->asString() == nullptr ? "(none)" : *value->asString();
}

TEST(Report, IsTheHeaderFollowedByTheReport) {
  const SampleFolder samples;
  EXPECT_EQ(outputOf({"report", samples.plain}),
            headerOf(samples.plain, "30", "40") +
                "\nColorModel = RGB\nDepth = 8\nPixelHeight = 30\nPixelWidth = 40\n"
                "\n{Exif} =\n{\n  ExifVersion = [2, 3, 1]\n}\n");
}

TEST(Report, ShowsTheSizeAsDisplayedInTheHeaderAndAsStoredBelow) {
  const SampleFolder samples;
  const std::string output = outputOf({"report", samples.photo});
  EXPECT_TRUE(output.starts_with(headerOf(samples.photo, "40", "30"))) << output;
  for (const char* line :
       {"\nOrientation = 90° CW - Portrait (6)\n", "\nPixelHeight = 30\n",
        "\n  Orientation = 90° CW - Portrait (6)\n", "\n  Latitude = -33.8568\n",
        "\n  DateTimeOriginal = 2018:09:30 14:03:11\n", "\n  City = Sydney;\n"}) {
    EXPECT_NE(output.find(line), std::string::npos) << line << " in " << output;
  }
  EXPECT_EQ(output.find("OffsetTime"), std::string::npos);
}

TEST(Report, OfAMovieShowsItsTracks) {
  const SampleFolder samples;
  const std::string output = outputOf({"report", samples.movie});
  EXPECT_TRUE(output.starts_with(headerOf(samples.movie, "1920", "1080"))) << output;
  for (const char* line : {"\nlatitude = ", "AVAssetTrack\n{\n  trackID = 1\n",
                           "\n  Codec = avc1\n", "\n  Rotation = 90.00°\n", "\n  Codec = aac \n"}) {
    EXPECT_NE(output.find(line), std::string::npos) << line << " in " << output;
  }
  EXPECT_TRUE(output.ends_with("}\n")) << output;
}

TEST(Report, PutsAnEmptyLineBetweenFiles) {
  const SampleFolder samples;
  const std::string photo = outputOf({"report", samples.photo});
  const std::string movie = outputOf({"report", samples.movie});
  EXPECT_EQ(outputOf({"report", samples.photo, samples.movie, samples.photo}),
            photo + "\n" + movie + "\n" + photo);
}

TEST(Report, AFailedFileLeavesNoGap) {
  const SampleFolder samples;
  const ToolResult result =
      runTool({"report", samples.file("missing"), samples.plain, samples.path(), samples.plain});
  const std::string plain = outputOf({"report", samples.plain});
  EXPECT_EQ(result.output, plain + "\n" + plain);
  EXPECT_EQ(result.status, 1);
}

TEST(Report, NamesTheCameraRollByItsOwnPaths) {
  const SampleFolder samples;
  const std::string path = "root/var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG";
  samples.writePhoto(path);
  const std::string root = samples.file("root");
  for (const std::string& name :
       {samples.file(path), std::string("/var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG")}) {
    const std::string output = outputOf({"report", "--root", root, name});
    EXPECT_TRUE(output.starts_with("100APPLE/IMG_0001.JPG\nFile Date: ")) << output;
    EXPECT_TRUE(
        outputOf({"quick-info", "--root", root, name}).starts_with("100APPLE/IMG_0001.JPG\n"));
  }
}

TEST(Report, MakesRelativePathsAbsolute) {
  const SampleFolder samples;
  const ToolResult result =
      runTool(ToolRun{.arguments = {"report", "./plain.jpg"}, .folder = samples.path()});
  EXPECT_TRUE(result.output.starts_with(samples.plain + "\n")) << result.output;
}

TEST(Report, FollowsLocaleAndTimeZone) {
  const SampleFolder samples;
  const std::string german =
      outputOf({"report", "--locale", "de_DE", "--time-zone", "CET-1CEST", samples.plain});
  EXPECT_NE(german.find("\nFile Date: 02.01.2020, 04:04:05\n"), std::string::npos) << german;
  const ToolResult byVariables =
      runTool(ToolRun{.arguments = {"report", samples.plain},
                      .variables = {{"TZ", "CET-1CEST"}, {"LANG", "de_DE.UTF-8"}}});
  EXPECT_EQ(byVariables.output, german);
}

TEST(ReportJson, HoldsEverythingOnALine) {
  const SampleFolder samples;
  const auto lines =
      linesOf(outputOf({"report", "--json", samples.photo, samples.movie, samples.plain}));
  ASSERT_EQ(lines.size(), 3U);
  const auto photo = objectOf(lines[0]);
  EXPECT_EQ(photo.size(), 6U);
  EXPECT_EQ(textIn(photo, "path"), samples.photo);
  EXPECT_EQ(textIn(photo, "header") + textIn(photo, "text") + "\n",
            outputOf({"report", samples.photo}));
  EXPECT_EQ(textIn(photo, "coordinates"), "-33.8568,151.2153");
  EXPECT_EQ(textIn(photo, "mapLink").substr(0, 7), "http://");
  EXPECT_TRUE(textIn(photo, "mapLink").ends_with("/?q=Lumifact&ll=-33.8568,151.2153"));
  EXPECT_NE(model::find(photo, "table")->asDictionary(), nullptr);
  const auto movie = objectOf(lines[1]);
  EXPECT_EQ(textIn(movie, "header") + textIn(movie, "text"), outputOf({"report", samples.movie}));
  EXPECT_TRUE(model::find(movie, "table")->isNull());
  const auto plain = objectOf(lines[2]);
  EXPECT_TRUE(model::find(plain, "coordinates")->isNull());
  EXPECT_TRUE(model::find(plain, "mapLink")->isNull());
}

TEST(ReportJson, NeverDependsOnTheUsersLocale) {
  const SampleFolder samples;
  const ToolResult german = runTool(ToolRun{.arguments = {"report", "--json", samples.photo},
                                            .variables = {{"LC_ALL", "de_DE.UTF-8"}}});
  EXPECT_EQ(german.output, outputOf({"report", "--json", samples.photo}));
}

TEST(ReportJson, GivesThePathAsItWasGiven) {
  const SampleFolder samples;
  const std::string name = "a\xff\x1b.jpg";
  samples.writePhoto(name);
  const ToolResult result =
      runTool(ToolRun{.arguments = {"report", "--json", name}, .folder = samples.path()});
  EXPECT_TRUE(result.output.starts_with("{\"path\":\"a\uFFFD\\u001b.jpg\",")) << result.output;
}

TEST(Properties, AreALineAFile) {
  const SampleFolder samples;
  const std::string output = outputOf({"properties", samples.plain, samples.movie});
  const auto lines = linesOf(output);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(output, lines[0] + "\n" + lines[1] + "\n");
  EXPECT_TRUE(lines[0].starts_with("{\"path\":\"" + samples.plain + "\",\"properties\":{"));
  EXPECT_TRUE(lines[1].starts_with("{\"path\":\"" + samples.movie + "\",\"asset\":{"));
}

TEST(Properties, GivenToParseGiveTheReport) {
  const SampleFolder samples;
  for (const std::string& path : {samples.photo, samples.plain, samples.movie}) {
    const auto read = objectOf(outputOf({"properties", path}));
    const auto report = objectOf(outputOf({"report", "--json", path}));
    EXPECT_EQ(textIn(read, "path"), path);
    const bool isMovie = path == samples.movie;
    const model::Value* inner = model::find(read, isMovie ? "asset" : "properties");
    ASSERT_NE(inner, nullptr);
    std::string json;
    appendJson(json, *inner);
    const ToolResult parsed =
        runTool(ToolRun{.arguments = {"parse", isMovie ? "video" : "image"}, .input = json + "\n"});
    const auto answer = objectOf(parsed.output);
    EXPECT_EQ(textIn(answer, "text"), textIn(report, "text"));
    EXPECT_EQ(textIn(answer, "coordinates"), textIn(report, "coordinates"));
    if (!isMovie) {
      EXPECT_EQ(*model::find(answer, "table"), *model::find(report, "table"));
    }
  }
}

TEST(Table, ShowsTheFileThenTheProperties) {
  const SampleFolder samples;
  EXPECT_EQ(outputOf({"table", samples.plain}),
            "FilePath = " + samples.plain +
                "\nFileDate = Jan 2, 2020 at 3:04:05 AM\nFileSize = " + sizeText(samples.plain) +
                "\nAssetHeight = 30\nAssetWidth = 40\n{Exif}\n  ExifVersion = [2, 3, 1]\n"
                "ColorModel = RGB\nDepth = 8\nPixelHeight = 30\nPixelWidth = 40\n");
}

TEST(Table, AVideoHasNone) {
  const SampleFolder samples;
  const ToolResult result = runTool({"table", samples.movie});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.messages,
            "lumifact: " + samples.movie + ": a video has no table (report shows its text)\n");
}

TEST(QuickInfo, LabelsItsLinesOrLeavesTheLabelsOut) {
  const SampleFolder samples;
  const std::string size = sizeText(samples.photo);
  EXPECT_EQ(outputOf({"quick-info", samples.photo}),
            samples.photo + "\nFile Date: Sep 30, 2018 at 12:03:11 PM\nFile Size: " + size +
                "\nWidth: 30\nHeight: 40\nOrientation: 90° CW - Portrait (6)\n"
                "Location: Sydney, Australia\n");
  EXPECT_EQ(outputOf({"quick-info", "--compact", samples.photo}),
            samples.photo + "\nSep 30, 2018 at 12:03:11 PM\n" + size +
                "\n30 x 40\n90° CW - Portrait (6)\nSydney, Australia\n");
}

TEST(QuickInfo, ShowsThePathAsAUrlAndTheDurationOfAVideo) {
  const SampleFolder samples;
  std::filesystem::copy_file(samples.movie, samples.file("a b\n%.mov"));
  const auto lines = linesOf(outputOf({"quick-info", samples.file("a b\n%.mov")}));
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[0], samples.path() + "/a%20b%0A%25.mov");
  EXPECT_TRUE(lines[5].starts_with("Duration: 00:00:")) << lines[5];
}

TEST(QuickInfo, PutsAnEmptyLineBetweenFiles) {
  const SampleFolder samples;
  EXPECT_EQ(
      outputOf({"quick-info", samples.plain, samples.movie}),
      outputOf({"quick-info", samples.plain}) + "\n" + outputOf({"quick-info", samples.movie}));
}

TEST(Caption, ShowsWhatTheDisplayValueSays) {
  const SampleFolder samples;
  const std::string size = sizeText(samples.photo);
  const std::pair<const char*, std::string> cases[] = {{"1", "30x40, jpg\n"},
                                                       {"2", size + ", jpg\n"},
                                                       {"3", "30x40, " + size + "\n"},
                                                       {"0", "\n"},
                                                       {"4", "\n"},
                                                       {"-1", "\n"}};
  for (const auto& [display, caption] : cases) {
    EXPECT_EQ(outputOf({"caption", "--display", display, samples.photo}), caption) << display;
  }
  EXPECT_EQ(outputOf({"caption", samples.photo, samples.movie}), "30x40, jpg\n1080x1920, mov\n");
}

TEST(Size, IsTheTitleOfTheSelection) {
  const SampleFolder samples;
  samples.write("a", std::string(1'500'000, 'x'));
  samples.write("b", std::string(2'500'000, 'x'));
  EXPECT_EQ(outputOf({"size", samples.file("a"), samples.file("b")}), "2 Items Selected (4 MB) \n");
  EXPECT_EQ(outputOf({"size", samples.file("a"), samples.path() + "/./a"}),
            "1 Items Selected (1.5 MB) \n")
      << "one file, named twice";
  EXPECT_EQ(outputOf({"size", samples.write("empty", "")}), "1 Items Selected\n");
}

TEST(Size, CountsLargeFilesInFull) {
  const SampleFolder samples;
  samples.write("large", "");
  std::filesystem::resize_file(samples.file("large"), 3'000'000'000);
  EXPECT_EQ(outputOf({"size", samples.file("large")}), "1 Items Selected (3 GB) \n");
}

TEST(Size, AnUnreadableFileAddsNothingAndIsReported) {
  const SampleFolder samples;
  samples.write("a", std::string(1'500'000, 'x'));
  const ToolResult result = runTool({"size", samples.file("missing"), samples.file("a")});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, "2 Items Selected (1.5 MB) \n");
  EXPECT_EQ(result.messages,
            "lumifact: " + samples.file("missing") + ": No such file or directory\n");
}

TEST(MapLink, FollowsTheChosenService) {
  const SampleFolder samples;
  EXPECT_TRUE(
      outputOf({"map-link", samples.photo}).ends_with("/?q=Lumifact&ll=-33.8568,151.2153\n"));
  EXPECT_EQ(outputOf({"map-link", "--map-type", "1", "--map-view", "2", samples.photo}),
            "comgooglemaps://?center=-33.8568,151.2153&zoom=19.00&views=satellite\n");
  EXPECT_EQ(outputOf({"map-link", "--map-type=1", "--map-zoom=0", "--location", "-33.5", "151.25"}),
            "comgooglemaps://?center=-33.500000,151.250000\n");
  EXPECT_EQ(outputOf({"map-link", "--map-type=1", "--map-zoom=12.5", "--map-view=1",
                      "--coordinates", "+1,x", "--location", "1", "2"}),
            "comgooglemaps://?center=+1,x&zoom=12.50&views=\n");
}

TEST(MapLink, AFileWithoutALocationIsAnError) {
  const SampleFolder samples;
  const ToolResult result = runTool({"map-link", samples.plain});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.messages, "lumifact: " + samples.plain + ": no location\n");
}

}  // namespace
}  // namespace lumifact::tool
