// SPDX-License-Identifier: MIT
#include "workers/message.h"

#include <fcntl.h>
#include <gmock/gmock.h>

#include <string>

namespace workers {

namespace {

using testing::ElementsAre;

std::vector<std::uint8_t> bytesOf(const std::string& text) {
  return {text.begin(), text.end()};
}

class MessageTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(_ends); }
  int here() const { return _ends->first.number(); }
  int there() const { return _ends->second.number(); }

  std::optional<std::pair<io::Descriptor, io::Descriptor>> _ends = socketPair();
};

TEST_F(MessageTest, IsKeptApartFromOthers) {
  ASSERT_TRUE(sendMessage(here(), bytesOf("ab")));
  ASSERT_TRUE(sendMessage(here(), bytesOf("c")));
  EXPECT_THAT(receiveMessage(there(), 10, Guests::refused)->bytes, ElementsAre('a', 'b'));
  EXPECT_THAT(receiveMessage(there(), 10, Guests::refused)->bytes, ElementsAre('c'));
}

TEST_F(MessageTest, IsNoneWhereItIsTooLong) {
  ASSERT_TRUE(sendMessage(here(), bytesOf("0123456789")));
  EXPECT_FALSE(receiveMessage(there(), 9, Guests::refused));
}

TEST_F(MessageTest, IsNoneWhereTheOtherEndIsGone) {
  _ends->second.reset();
  EXPECT_FALSE(sendMessage(here(), bytesOf("a")));
  EXPECT_FALSE(receiveMessage(here(), 10, Guests::refused));
}

TEST_F(MessageTest, BringsADescriptorWhereThatIsWanted) {
  const io::Descriptor file(open("/dev/null", O_RDONLY | O_CLOEXEC));
  ASSERT_TRUE(sendMessage(here(), bytesOf("a"), file.number()));
  ASSERT_TRUE(sendMessage(here(), bytesOf("a"), file.number()));
  const auto with = receiveMessage(there(), 10, Guests::taken);
  ASSERT_TRUE(with && with->descriptor);
  EXPECT_NE(fcntl(with->descriptor.number(), F_GETFD) & FD_CLOEXEC, 0);
  const auto without = receiveMessage(there(), 10, Guests::refused);
  ASSERT_TRUE(without);
  EXPECT_FALSE(without->descriptor);
}

}  // namespace

}  // namespace workers
