// SPDX-License-Identifier: MIT
#include "desktop/pictures/workers/decoder_messages.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/mman.h>
#include <unistd.h>

#include "desktop/pictures/pixels/limits.h"
#include "workers/message.h"

namespace desktop::pictures {

namespace {

using AnswerKind = DecodeAnswer::Kind;

io::Descriptor emptyFrame() {
  return io::Descriptor(memfd_create("frame", MFD_CLOEXEC));
}

TEST(DecoderMessages, CarryOrdersAndTheirFiles) {
  const auto ends = workers::socketPair();
  ASSERT_TRUE(ends);
  const io::Descriptor file(open("/proc/self/exe", O_RDONLY | O_CLOEXEC));
  for (const auto fit : {Request::Fit::fit, Request::Fit::fill}) {
    const DecodeOrder order{.name = "\xFF.jpg", .request = {300, 200, fit}};
    ASSERT_TRUE(sendOrder(ends->first.number(), order, file.number()));
    const auto received = receiveOrder(ends->second.number());
    ASSERT_TRUE(received);
    EXPECT_EQ(received->name, order.name);
    EXPECT_EQ(received->request, order.request);
    char byte = 0;
    EXPECT_EQ(pread(received->file.number(), &byte, 1, 0), 1);
    EXPECT_EQ(byte, '\x7F');
  }
}

TEST(DecoderMessages, CarryPictures) {
  const io::Descriptor frame = emptyFrame();
  const Picture picture{2, 3, {1, 2, 3, 4, 5, 6}};
  ASSERT_FALSE(writePixels(picture, frame.number()));
  const auto answer =
      answerOfBytes(bytesOfAnswer({.kind = AnswerKind::decoded, .width = 2, .height = 3}));
  ASSERT_TRUE(answer);
  const auto received = readPixels(*answer, frame.number());
  ASSERT_TRUE(received);
  EXPECT_EQ(received->pixels, picture.pixels);
  EXPECT_EQ(received->width, 2);
}

TEST(DecoderMessages, CutLongReasons) {
  const auto answer = answerOfBytes(bytesOfAnswer({.reason = std::string(100'000, 'x')}));
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->reason.size(), limits.reasonBytes);
}

TEST(DecoderMessages, EndWithTheOtherEnd) {
  auto ends = workers::socketPair();
  ASSERT_TRUE(ends);
  ends->second.reset();
  EXPECT_FALSE(sendOrder(ends->first.number(), {.name = "a", .request = {}}, -1));
  EXPECT_FALSE(receiveAnswer(ends->first.number()));
}

// A worker that was taken over may send what it likes.
TEST(DecoderMessages, AreRefusedWhereTheyAreCut) {
  const auto message = bytesOfAnswer({.kind = AnswerKind::failed, .reason = "cut"});
  EXPECT_TRUE(answerOfBytes(message));
  for (std::size_t length = 0; length < message.size(); ++length)
    EXPECT_FALSE(answerOfBytes(std::span(message).first(length))) << length;
  auto longer = message;
  longer.push_back(0);
  EXPECT_FALSE(answerOfBytes(longer));
}

TEST(DecoderMessages, DistrustSizes) {
  const auto isAccepted = [](int width, int height) {
    return answerOfBytes(
               bytesOfAnswer({.kind = AnswerKind::decoded, .width = width, .height = height}))
        .has_value();
  };
  EXPECT_TRUE(isAccepted(1, 2));
  EXPECT_FALSE(isAccepted(0, 0));
  EXPECT_FALSE(isAccepted(-1, -2));
  EXPECT_FALSE(isAccepted(65'535, 65'535));
  EXPECT_FALSE(isAccepted(2'000'000'000, 2'000'000'000));
}

TEST(DecoderMessages, AcceptNoByteBeyondItsRange) {
  const auto message = bytesOfAnswer({.kind = AnswerKind::decoded, .width = 20, .height = 30});
  for (std::size_t place = 0; place < message.size(); ++place) {
    for (int value = 0; value < 256; ++value) {
      auto bytes = message;
      bytes[place] = static_cast<std::uint8_t>(value);
      const auto answer = answerOfBytes(bytes);
      if (!answer || answer->kind != AnswerKind::decoded) continue;
      EXPECT_GT(answer->width, 0);
      EXPECT_GT(answer->height, 0);
      EXPECT_LE(std::uint64_t{4} * static_cast<unsigned>(answer->width) *
                    static_cast<unsigned>(answer->height),
                limits.pictureBytes);
    }
  }
}

TEST(DecoderMessages, DistrustFrames) {
  const io::Descriptor frame = emptyFrame();
  ASSERT_FALSE(writePixels({1, 2, {1, 2}}, frame.number()));
  const auto readAs = [&](int width, int height) {
    return static_cast<bool>(readPixels(
        {.kind = AnswerKind::decoded, .width = width, .height = height}, frame.number()));
  };
  EXPECT_TRUE(readAs(1, 2));
  EXPECT_FALSE(readAs(2, 2)) << "fewer pixels than that";
  ASSERT_EQ(ftruncate(frame.number(), 0), 0);
  EXPECT_FALSE(readAs(1, 2));
}

}  // namespace

}  // namespace desktop::pictures
