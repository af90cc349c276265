// SPDX-License-Identifier: MIT
#include "foundation/property_lists/property_list.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <random>

#include "model/description.h"
#include "tests/foundation/raw_binary_list.h"

namespace foundation {
namespace {

using model::Array;
using model::Data;
using model::Date;
using model::Dictionary;
using model::Value;

// Trees of every kind that both forms can hold.
class RandomTrees {
 public:
  explicit RandomTrees(std::uint32_t seed) : _random(seed) {}

  Value tree(int depth) {
    switch (upTo(depth > 0 ? 7 : 5)) {
      case 0:
        return upTo(1) == 0;
      case 1:
        return static_cast<std::int64_t>(_wide(_random) >> upTo(63));
      case 2:
        return static_cast<double>(static_cast<std::int64_t>(_wide(_random))) / (upTo(1000) + 1);
      case 3:
        return text();
      case 4:
        return Date{static_cast<double>(upTo(4'000'000'000U)) - 2e9};
      case 5:
        return data();
      case 6:
        return array(depth - 1);
      default:
        return dictionary(depth - 1);
    }
  }

 private:
  std::uint32_t upTo(std::uint32_t largest) {
    return std::uniform_int_distribution<std::uint32_t>(0, largest)(_random);
  }

  std::string text() {
    static const std::vector<std::string> pieces = {"a",
                                                    "Z",
                                                    "0",
                                                    "_",
                                                    " ",
                                                    "\n",
                                                    "\t",
                                                    "&",
                                                    "<",
                                                    "]]>",
                                                    "\"",
                                                    "'",
                                                    "\r",
                                                    ";",
                                                    "\xC3\xA9",
                                                    "\xE2\x82\xAC",
                                                    "\xF0\x9F\x93\xB7",
                                                    "longer text"};
    std::string text;
    for (std::uint32_t count = upTo(20); count > 0; --count) {
      text += pieces[upTo(static_cast<std::uint32_t>(pieces.size() - 1))];
    }
    return text;
  }

  Value data() {
    Data data(upTo(100));
    for (auto& byte : data) byte = static_cast<std::uint8_t>(upTo(255));
    return data;
  }

  Value array(int depth) {
    Array elements;
    for (std::uint32_t count = upTo(20); count > 0; --count) elements.push_back(tree(depth));
    return elements;
  }

  Value dictionary(int depth) {
    Dictionary entries;
    for (std::uint32_t count = upTo(20); count > 0; --count) entries[text()] = tree(depth);
    return entries;
  }

  std::mt19937 _random;
  std::uniform_int_distribution<std::uint64_t> _wide;
};

TEST(PropertyListTest, randomTreesComeBackFromBothForms) {
  const std::uint32_t seed = std::random_device{}();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  RandomTrees trees(seed);
  for (int round = 0; round < 300; ++round) {
    const Value tree = trees.tree(4);
    for (const auto format : {PropertyListFormat::binary, PropertyListFormat::xml}) {
      const auto written = serializePropertyList(tree, format);
      ASSERT_TRUE(written) << model::description(tree);
      if (written->size() > largestPropertyList) continue;
      const auto read = parsePropertyList(viewOf(*written));
      ASSERT_TRUE(read) << read.error().reason << "\n" << model::description(tree);
      ASSERT_EQ(read->format, format);
      ASSERT_EQ(read->root, tree) << model::description(tree);
    }
  }
}

// A list with every kind of object.
Value sampleTree() {
  return Dictionary{{"array", Array{1, 2.5, true, "text", Data(20, 7), Date{1e9}}},
                    {"\xC3\xA9", Dictionary{{"inner", "\xE2\x82\xAC"}}},
                    {"large", std::int64_t{1} << 40}};
}

TEST(PropertyListTest, listsCutAtEachByteAreRefusedOrRead) {
  for (const auto format : {PropertyListFormat::binary, PropertyListFormat::xml}) {
    const std::string whole = *serializePropertyList(sampleTree(), format);
    const std::size_t shortestWhole = whole.find_last_of('>') + 1;  // blanks behind XML may go
    for (std::size_t size = 0; size < whole.size(); ++size) {
      const auto parsed = parsePropertyList(viewOf(std::string_view(whole).substr(0, size)));
      const bool mayRead = format == PropertyListFormat::xml && size >= shortestWhole;
      EXPECT_EQ(static_cast<bool>(parsed), mayRead) << "cut at " << size;
    }
  }
}

TEST(PropertyListTest, changedBytesNeverDoHarm) {
  const std::uint32_t seed = std::random_device{}();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  for (const auto format : {PropertyListFormat::binary, PropertyListFormat::xml}) {
    const std::string whole = *serializePropertyList(sampleTree(), format);
    int read = 0;
    for (std::size_t at = 0; at < whole.size(); ++at) {
      for (const int value :
           {0x00, 0x0F, 0x14, 0x80, 0xAF, 0xDF, 0xFF, static_cast<int>(random() & 0xFF)}) {
        std::string changed = whole;
        changed[at] = static_cast<char>(value);
        if (parsePropertyList(viewOf(changed))) ++read;
      }
    }
    EXPECT_GT(read, 0);
  }
}

TEST(PropertyListTest, hostileListsAreRefused) {
  std::vector<std::string> objects;
  for (std::uint64_t level = 1; level <= 40; ++level) {
    objects.push_back(rawContainer({level, level}));
  }
  objects.emplace_back("\x09");
  std::string nested = "<plist>";
  while (nested.size() < largestPropertyList - 7) nested += "<array>";
  std::string empty = "<plist>";
  while (empty.size() < largestPropertyList - 4) empty += "<a/>";
  std::string blanks = "<plist>";
  while (blanks.size() < largestPropertyList - 5) blanks += "<a/> ";
  const std::string lists[] = {rawList(objects), nested, empty, blanks};
  for (const std::string& list : lists)
    EXPECT_FALSE(parsePropertyList(viewOf(list))) << list.substr(0, 40);
}

class PropertyListFileTest : public testing::Test {
 protected:
  void SetUp() override {
    _folder =
        std::filesystem::temp_directory_path() / ("property-lists-" + std::to_string(::getpid()));
    std::filesystem::create_directories(_folder);
  }
  void TearDown() override { std::filesystem::remove_all(_folder); }

  std::string path(const std::string& name) const { return (_folder / name).string(); }

  std::string write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path(name), std::ios::binary) << bytes;
    return path(name);
  }

 private:
  std::filesystem::path _folder;
};

TEST_F(PropertyListFileTest, aFileOfEitherFormIsRead) {
  for (const auto format : {PropertyListFormat::binary, PropertyListFormat::xml}) {
    const auto read =
        readPropertyList(write("a.plist", *serializePropertyList(sampleTree(), format)));
    ASSERT_TRUE(read) << read.error().reason;
    EXPECT_EQ(read->root, sampleTree());
    EXPECT_EQ(read->format, format);
  }
}

TEST_F(PropertyListFileTest, whatIsNoReadableFileIsRefused) {
  ASSERT_EQ(::mkfifo(path("fifo").c_str(), 0600), 0);
  EXPECT_EQ(readPropertyList(path("missing")).error().reason, "No such file or directory");
  EXPECT_EQ(readPropertyList(path("fifo")).error().reason, "not a regular file");
  EXPECT_EQ(readPropertyList("/dev/zero").error().reason, "not a regular file");
  EXPECT_FALSE(readPropertyList(path(".")));
  EXPECT_FALSE(readPropertyList(write("empty", "")));
}

TEST_F(PropertyListFileTest, aFileOfMoreThanAMebibyteIsNotRead) {
  const std::string list = "<plist><true/></plist>";
  const std::string largest = list + std::string(largestPropertyList - list.size(), '\n');
  EXPECT_TRUE(readPropertyList(write("largest", largest)));
  EXPECT_EQ(readPropertyList(write("larger", largest + "\n")).error().reason,
            "property list larger than 1 MiB");
  std::filesystem::resize_file(write("sparse", list), std::uintmax_t{1} << 30);
  EXPECT_EQ(readPropertyList(path("sparse")).error().reason, "property list larger than 1 MiB");
}

}  // namespace
}  // namespace foundation
