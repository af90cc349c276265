// SPDX-License-Identifier: MIT
#include "foundation/file_url.h"

#include <gtest/gtest.h>

namespace foundation {
namespace {

TEST(FileUrlTest, givesThePathAsBytes) {
  const struct {
    std::string_view url;
    std::string_view path;
  } cases[] = {
      {"file:///a/b.jpg", "/a/b.jpg"},
      {"file://localhost/a.jpg", "/a.jpg"},
      {"file:///a%20b%C3%A9%ff.jpg", "/a b\xC3\xA9\xFF.jpg"},
      {"file:///a%3Fb%23c%2525", "/a?b#c%25"},
      {"file:///a.jpg?q#f", "/a.jpg"},
      {"file:///100%", "/100%"},
      {"file:///a%zz%4", "/a%zz%4"},
      {"file:///", "/"},
  };
  for (const auto& row : cases) EXPECT_EQ(pathOfFileUrl(row.url), row.path) << row.url;
}

TEST(FileUrlTest, refusesWhatIsNoFileHere) {
  for (const char* url : {"", "/a.jpg", "http://host/a.jpg", "file://host/a.jpg", "file:a.jpg",
                          "file://", "file:///a%00b"}) {
    EXPECT_EQ(pathOfFileUrl(url), std::nullopt) << url;
  }
}

}  // namespace
}  // namespace foundation
