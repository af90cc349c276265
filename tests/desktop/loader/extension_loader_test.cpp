// SPDX-License-Identifier: MIT
#include "desktop/loader/extension_loader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "desktop/loader/extension_filter.h"
#include "foundation/property_lists/property_list.h"
#include "tests/support/library_cuts.h"
#include "tests/support/temporary_folder.h"

namespace desktop::loader {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

model::Value filterFor(const char* bundle) {
  return model::Dictionary{
      {"Filter", model::Dictionary{{"Bundles", model::Array{"com.example.other", bundle}}}}};
}

class ExtensionLoaderTest : public testing::Test {
 protected:
  ExtensionLoaderTest() {
    std::string pattern = testing::TempDir() + "extensionsXXXXXX";
    folder = mkdtemp(pattern.data());
    unsetenv("SAMPLE_EXTENSION_RUNS");
  }
  ~ExtensionLoaderTest() override { fs::remove_all(folder); }

  void writeFilter(const std::string& name, const model::Value& list) {
    const auto bytes = foundation::serializePropertyList(list, foundation::PropertyListFormat::xml);
    write(name + ".plist", *bytes);
  }
  void write(const std::string& name, const std::string& content) {
    std::ofstream(folder / name, std::ios::binary) << content;
  }
  // A copy, so that it is another library to the system.
  void addLibrary(const std::string& name) {
    fs::copy_file(SAMPLE_EXTENSION, folder / (name + ".so"));
  }

  std::vector<std::string> load(std::string_view bundle = "com.example.host", double version = 0) {
    return loadExtensions(folder.string(), {bundle, version},
                          [this](const std::string& path, const std::string& reason) {
                            problems.push_back(fs::path(path).filename().string() + ": " + reason);
                          });
  }
  std::string path(const char* name) const { return (folder / name).string(); }

  fs::path folder;
  std::vector<std::string> problems;
};

TEST_F(ExtensionLoaderTest, MapsWhatIsForTheHostAndRunsItsInitialiserOnce) {
  addLibrary("Sample");
  writeFilter("Sample", filterFor("com.example.host"));
  EXPECT_THAT(load(), ElementsAre(path("Sample.so")));
  EXPECT_STREQ(std::getenv("SAMPLE_EXTENSION_RUNS"), "1");
  EXPECT_THAT(load(), ElementsAre(path("Sample.so")));
  EXPECT_STREQ(std::getenv("SAMPLE_EXTENSION_RUNS"), "1");
  EXPECT_THAT(problems, IsEmpty());
}

TEST_F(ExtensionLoaderTest, LeavesWhatIsForOthersOrForNobody) {
  addLibrary("Other");
  writeFilter("Other", filterFor("com.example.elsewhere"));
  addLibrary("Unfiltered");
  EXPECT_THAT(load(), IsEmpty());
  EXPECT_EQ(std::getenv("SAMPLE_EXTENSION_RUNS"), nullptr);
  EXPECT_THAT(problems, IsEmpty());
}

TEST_F(ExtensionLoaderTest, MapsInTheOrderOfNames) {
  for (const char* name : {"b", "a", "C"}) {
    addLibrary(name);
    writeFilter(name, filterFor("com.example.host"));
  }
  EXPECT_THAT(load(), ElementsAre(path("C.so"), path("a.so"), path("b.so")));
}

TEST_F(ExtensionLoaderTest, NamesWhatIsBrokenAndGoesOn) {
  write("a.plist", "no property list");
  writeFilter("b", model::Dictionary{{"Filter", "text"}});
  writeFilter("c", filterFor("com.example.host"));
  writeFilter("d", filterFor("com.example.host"));
  write("d.so", "no library");
  fs::create_directories(folder / "e.plist");
  ASSERT_EQ(mkfifo(path("f.plist").c_str(), 0600), 0);
  writeFilter("g", filterFor("com.example.host"));
  fs::create_directories(folder / "g.so");
  addLibrary("z");
  writeFilter("z", filterFor("com.example.host"));
  EXPECT_THAT(load(), ElementsAre(path("z.so")));
  EXPECT_THAT(problems, ElementsAre(HasSubstr("a.plist: "), "b.plist: filter has no \"Filter\"",
                                    "c.so: no such library beside its filter", HasSubstr("d.so: "),
                                    HasSubstr("e.plist: "), HasSubstr("f.plist: "),
                                    "g.so: no such library beside its filter"));
  EXPECT_THAT(problems[3], testing::Not(HasSubstr(folder.string())));
}

// Mapping what is cut off would end the process with a signal.
TEST_F(ExtensionLoaderTest, AnExtensionThatIsCutOffIsToldBeforeItIsMapped) {
  const std::string whole = support::contentsOf(SAMPLE_EXTENSION);
  for (const std::size_t size : support::cutsOfLibrary(whole)) {
    write("cut.so", whole.substr(0, size));
    writeFilter("cut", filterFor("com.example.host"));
    problems.clear();
    EXPECT_THAT(load(), IsEmpty()) << size;
    EXPECT_THAT(problems, ElementsAre(testing::AnyOf("cut.so: no shared library",
                                                     "cut.so: a shared library that is cut off")))
        << size;
  }
  EXPECT_EQ(std::getenv("SAMPLE_EXTENSION_RUNS"), nullptr);
}

TEST_F(ExtensionLoaderTest, AFolderThatIsMissingHoldsNothing) {
  fs::remove_all(folder);
  EXPECT_THAT(load(), IsEmpty());
  EXPECT_THAT(problems, IsEmpty());
}

TEST_F(ExtensionLoaderTest, AFolderThatIsNoneIsTold) {
  write("file", "");
  folder /= "file";
  EXPECT_THAT(load(), IsEmpty());
  EXPECT_THAT(problems, ElementsAre(HasSubstr("file: ")));
  folder = folder.parent_path();
}

model::Value filterOf(model::Value versions) {
  model::Value list = filterFor("com.example.host");
  (*find(*list.asDictionary(), "Filter")->asDictionary())["CoreFoundationVersion"] =
      std::move(versions);
  return list;
}

TEST(ExtensionFilter, IsRefusedUnlessItListsBundles) {
  const model::Value refused[] = {
      {},
      "text",
      model::Array{},
      model::Dictionary{},
      model::Dictionary{{"Filter", model::Dictionary{}}},
      model::Dictionary{{"Filter", model::Dictionary{{"Bundles", "com.example.host"}}}},
      model::Dictionary{{"Filter", model::Dictionary{{"Bundles", model::Array{1}}}}},
  };
  for (const model::Value& list : refused)
    EXPECT_FALSE(parseFilter(list)) << static_cast<int>(list.kind());
}

TEST(ExtensionFilter, MatchesWholeIdentifiersOnly) {
  const auto filter = parseFilter(filterFor("com.example.host"));
  ASSERT_TRUE(filter);
  EXPECT_TRUE(filter->matches({"com.example.host"}));
  EXPECT_TRUE(filter->matches({"com.example.other"}));
  EXPECT_FALSE(filter->matches({"com.example"}));
  EXPECT_FALSE(filter->matches({"COM.EXAMPLE.HOST"}));
  EXPECT_FALSE(filter->matches({""}));
}

TEST(ExtensionFilter, MatchesVersionsFromTheFirstToBelowTheSecond) {
  const struct {
    model::Array versions;
    double version;
    bool isMatched;
  } rows[] = {
      {{1556.0, 1600.0}, 1556.0, true},
      {{1556.0, 1600.0}, 1575.5, true},
      {{1556.0, 1600.0}, 1555.9, false},
      {{1556.0, 1600.0}, 1600.0, false},
      {{1556, 1600}, 1556.0, true},
      {{1556, 1600}, 1600.0, false},
      {{1556.0}, 1e6, true},
      {{1556.0}, 1348.0, false},
      {{1600.0, 1556.0}, 1575.5, false},
  };
  for (const auto& row : rows) {
    const auto filter = parseFilter(filterOf(row.versions));
    ASSERT_TRUE(filter) << row.version;
    EXPECT_EQ(filter->matches({"com.example.host", row.version}), row.isMatched) << row.version;
    EXPECT_FALSE(filter->matches({"com.example", row.version})) << row.version;
  }
}

TEST(ExtensionFilter, IsRefusedWithVersionsThatAreNoRange) {
  const model::Value refused[] = {
      1556.0,
      "1556",
      model::Array{},
      model::Array{"1556"},
      model::Array{1556.0, true},
      model::Array{1.0, 2.0, 3.0},
      model::Dictionary{},
  };
  for (const model::Value& versions : refused)
    EXPECT_FALSE(parseFilter(filterOf(versions))) << static_cast<int>(versions.kind());
}

TEST_F(ExtensionLoaderTest, LeavesWhatIsForOtherSystems) {
  addLibrary("Older");
  writeFilter("Older", filterOf(model::Array{1.0, 1556.0}));
  addLibrary("Sample");
  writeFilter("Sample", filterOf(model::Array{1556.0, 1600.0}));
  EXPECT_THAT(load("com.example.host", 1575.5), ElementsAre(path("Sample.so")));
  EXPECT_THAT(problems, IsEmpty());
}

}  // namespace
}  // namespace desktop::loader
