// SPDX-License-Identifier: MIT
#include "desktop/pictures/workers/decoder_messages.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <unistd.h>

#include "desktop/pictures/pixels/limits.h"

namespace desktop::pictures {

namespace {

TEST(DecoderMessages, CarryOrders) {
  const auto ends = socketPair();
  ASSERT_TRUE(ends);
  const DecodeOrder order{"/a folder/\xFF.jpg", {300, 200, Request::Fit::fill}};
  ASSERT_TRUE(sendOrder(ends->first.number(), order));
  const auto received = receiveOrder(ends->second.number());
  ASSERT_TRUE(received);
  EXPECT_EQ(received->path, order.path);
  EXPECT_EQ(received->request, order.request);
}

TEST(DecoderMessages, CarryPictures) {
  const auto ends = socketPair();
  ASSERT_TRUE(ends);
  const Picture picture{2, 3, {1, 2, 3, 4, 5, 6}};
  auto pixels = writePixels(picture);
  ASSERT_TRUE(pixels);
  ASSERT_TRUE(sendAnswer(ends->first.number(), {.kind = DecodeAnswer::Kind::decoded,
                                                .width = 2,
                                                .height = 3,
                                                .pixels = *std::move(pixels)}));
  const auto answer = receiveAnswer(ends->second.number());
  ASSERT_TRUE(answer);
  EXPECT_NE(fcntl(answer->pixels.number(), F_GETFD) & FD_CLOEXEC, 0);
  const auto received = readPixels(*answer);
  ASSERT_TRUE(received);
  EXPECT_EQ(received->pixels, picture.pixels);
  EXPECT_EQ(received->width, 2);
}

TEST(DecoderMessages, CutLongReasons) {
  const auto ends = socketPair();
  ASSERT_TRUE(ends);
  ASSERT_TRUE(sendAnswer(ends->first.number(), {.reason = std::string(100'000, 'x')}));
  const auto answer = receiveAnswer(ends->second.number());
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->reason.size(), limits.reasonBytes);
}

TEST(DecoderMessages, EndWithTheOtherEnd) {
  auto ends = socketPair();
  ASSERT_TRUE(ends);
  ends->second.reset();
  EXPECT_FALSE(sendOrder(ends->first.number(), {"a", {}}));
  EXPECT_FALSE(receiveAnswer(ends->first.number()));
}

TEST(DecoderMessages, AreRefusedWhereTheyAreTooShort) {
  const auto ends = socketPair();
  ASSERT_TRUE(ends);
  ASSERT_EQ(send(ends->first.number(), "abc", 3, 0), 3);
  EXPECT_FALSE(receiveAnswer(ends->second.number()));
}

// A worker that was taken over may send what it likes.
TEST(DecoderMessages, DistrustSizesAndFiles) {
  const auto answerOf = [](int width, int height, io::Descriptor pixels) {
    return DecodeAnswer{.kind = DecodeAnswer::Kind::decoded,
                        .width = width,
                        .height = height,
                        .pixels = std::move(pixels)};
  };
  const auto file = [] { return *writePixels({1, 2, {1, 2}}); };
  EXPECT_TRUE(readPixels(answerOf(1, 2, file())));
  EXPECT_FALSE(readPixels(answerOf(2, 2, file()))) << "fewer pixels than that";
  EXPECT_FALSE(readPixels(answerOf(-1, -2, file())));
  EXPECT_FALSE(readPixels(answerOf(0, 0, file())));
  EXPECT_FALSE(readPixels(answerOf(2'000'000'000, 2'000'000'000, file())));
  EXPECT_FALSE(readPixels(answerOf(1, 1, io::Descriptor())));
  EXPECT_FALSE(readPixels(answerOf(1, 1, io::Descriptor(open("/dev/zero", O_RDONLY | O_CLOEXEC)))));
}

}  // namespace

}  // namespace desktop::pictures
