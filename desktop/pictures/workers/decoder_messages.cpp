// SPDX-License-Identifier: MIT
//
// The frame is read and written by position and never mapped, since the other side could cut it
// meanwhile.
#include "desktop/pictures/workers/decoder_messages.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string_view>

#include "desktop/pictures/pixels/limits.h"
#include "model/utf8.h"
#include "workers/fields.h"
#include "workers/message.h"

namespace desktop::pictures {

namespace {

using workers::FieldReader;
using workers::FieldWriter;

constexpr std::size_t headBytes = 32;  // at least what stands beside the text of a message

std::uint64_t pixelBytes(int width, int height) {
  return static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(height) *
         sizeof(std::uint32_t);
}

// Repeats a transfer until everything is through. False where it ends before.
template <typename Transfer>
bool transferAll(std::size_t size, Transfer transfer) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t count = transfer(done);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    done += static_cast<std::size_t>(count);
  }
  return true;
}

}  // namespace

bool sendOrder(int socket, const DecodeOrder& order, int file) {
  const Request& request = order.request;
  const auto bytes = FieldWriter()
                         .number(request.maxWidth)
                         .number(request.maxHeight)
                         .flag(request.fit == Request::Fit::fit)
                         .text(std::string_view(order.name).substr(0, limits.nameBytes))
                         .take();
  return workers::sendMessage(socket, bytes, file);
}

std::optional<DecodeOrder> receiveOrder(int socket) {
  auto message =
      workers::receiveMessage(socket, limits.nameBytes + headBytes, workers::Guests::taken);
  if (!message) return std::nullopt;
  FieldReader fields(message->bytes);
  DecodeOrder order{.name = {}, .request = {}, .file = std::move(message->descriptor)};
  order.request.maxWidth = fields.number<int>();
  order.request.maxHeight = fields.number<int>();
  order.request.fit = fields.flag() ? Request::Fit::fit : Request::Fit::fill;
  order.name = fields.text(limits.nameBytes);
  if (!fields.isWhole()) return std::nullopt;
  return order;
}

std::vector<std::uint8_t> bytesOfAnswer(const DecodeAnswer& answer) {
  const std::string reason =
      model::replacingInvalidUtf8(answer.reason).substr(0, limits.reasonBytes);
  return FieldWriter()
      .number(static_cast<std::uint8_t>(answer.kind))
      .number(answer.width)
      .number(answer.height)
      .text(reason)
      .take();
}

std::optional<DecodeAnswer> answerOfBytes(std::span<const std::uint8_t> bytes) {
  FieldReader fields(bytes);
  DecodeAnswer answer;
  answer.kind = static_cast<DecodeAnswer::Kind>(
      fields.oneOf(static_cast<std::uint8_t>(DecodeAnswer::Kind::failed)));
  answer.width = fields.oneOf(limits.imageSide);
  answer.height = fields.oneOf(limits.imageSide);
  // A text that was cut may end in the middle of a character.
  answer.reason = model::replacingInvalidUtf8(fields.text(limits.reasonBytes));
  if (!fields.isWhole()) return std::nullopt;
  const std::uint64_t size = pixelBytes(answer.width, answer.height);
  const bool isPicture = size > 0 && size <= limits.pictureBytes;
  if (answer.kind == DecodeAnswer::Kind::decoded && !isPicture) return std::nullopt;
  return answer;
}

bool sendAnswer(int socket, const DecodeAnswer& answer) {
  return workers::sendMessage(socket, bytesOfAnswer(answer));
}

std::optional<DecodeAnswer> receiveAnswer(int socket) {
  const auto message =
      workers::receiveMessage(socket, limits.reasonBytes + headBytes, workers::Guests::refused);
  return message ? answerOfBytes(message->bytes) : std::nullopt;
}

std::optional<model::Error> writePixels(const Picture& picture, int frame) {
  const auto* bytes = reinterpret_cast<const char*>(picture.pixels.data());
  const std::size_t size = picture.byteCount();
  const bool isWritten = transferAll(size, [&](std::size_t done) {
    return pwrite(frame, bytes + done, size - done, static_cast<off_t>(done));
  });
  if (isWritten) return std::nullopt;
  return model::Error{std::strerror(errno)};
}

model::Result<Picture> readPixels(const DecodeAnswer& answer, int frame) {
  const std::uint64_t size = pixelBytes(answer.width, answer.height);
  // Memory is taken for no more than is there.
  struct stat status {};
  if (::fstat(frame, &status) != 0 || static_cast<std::uint64_t>(status.st_size) < size)
    return model::Error{"damaged answer"};
  Picture picture{answer.width, answer.height, std::vector<std::uint32_t>(size / 4)};
  auto* bytes = reinterpret_cast<char*>(picture.pixels.data());
  const bool isRead = transferAll(size, [&](std::size_t done) {
    return pread(frame, bytes + done, size - done, static_cast<off_t>(done));
  });
  if (!isRead) return model::Error{"damaged answer"};
  return picture;
}

}  // namespace desktop::pictures
