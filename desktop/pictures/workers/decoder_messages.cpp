// SPDX-License-Identifier: MIT
//
// A message is a fixed head of numbers and one text behind it, in one packet of a socket that keeps
// packets whole. Pixels are too many for it: they lie in a memory file whose descriptor travels
// with the answer, and are read, never mapped, since a worker could cut the file while it is looked
// at. Nothing of an answer is believed: sizes are checked, descriptors beyond the first are closed.
#include "desktop/pictures/workers/decoder_messages.h"

#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <span>

#include "desktop/pictures/pixels/limits.h"

namespace desktop::pictures {

namespace {

struct OrderHead {
  std::int32_t maxWidth;
  std::int32_t maxHeight;
  Request::Fit fit;
};

struct AnswerHead {
  DecodeAnswer::Kind kind;
  std::int32_t width;
  std::int32_t height;
};

// The text behind the head, cut at the limit.
template <typename Head>
bool sendMessage(int socket, Head head, std::string_view text, int descriptor = -1) {
  std::array<iovec, 2> parts = {
      {{&head, sizeof head}, {const_cast<char*>(text.data()), text.size()}}};
  msghdr message{};
  message.msg_iov = parts.data();
  message.msg_iovlen = parts.size();
  alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> control{};
  if (descriptor >= 0) {
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    cmsghdr* rights = CMSG_FIRSTHDR(&message);
    rights->cmsg_level = SOL_SOCKET;
    rights->cmsg_type = SCM_RIGHTS;
    rights->cmsg_len = CMSG_LEN(sizeof(int));
    std::memcpy(CMSG_DATA(rights), &descriptor, sizeof(int));
  }
  ssize_t sent = 0;
  do sent = sendmsg(socket, &message, MSG_NOSIGNAL);
  while (sent < 0 && errno == EINTR);
  return sent >= 0;
}

template <typename Head>
struct Message {
  Head head;
  std::string text;
  io::Descriptor descriptor;
};

// The descriptors that came with a message: the first is kept, the others are closed.
io::Descriptor descriptorOf(msghdr& message) {
  io::Descriptor first;
  for (cmsghdr* part = CMSG_FIRSTHDR(&message); part != nullptr;
       part = CMSG_NXTHDR(&message, part)) {
    if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS) continue;
    const std::size_t count = (part->cmsg_len - CMSG_LEN(0)) / sizeof(int);
    for (std::size_t index = 0; index < count; ++index) {
      int number = -1;
      std::memcpy(&number, CMSG_DATA(part) + index * sizeof(int), sizeof(int));
      io::Descriptor received(number);
      if (!first) first = std::move(received);
    }
  }
  return first;
}

template <typename Head>
std::optional<Message<Head>> receiveMessage(int socket, std::size_t longestText) {
  Message<Head> result{};
  result.text.resize(longestText);
  std::array<iovec, 2> parts = {
      {{&result.head, sizeof result.head}, {result.text.data(), result.text.size()}}};
  alignas(cmsghdr) std::array<char, CMSG_SPACE(4 * sizeof(int))> control{};
  msghdr message{};
  message.msg_iov = parts.data();
  message.msg_iovlen = parts.size();
  message.msg_control = control.data();
  message.msg_controllen = control.size();
  ssize_t count = 0;
  do count = recvmsg(socket, &message, MSG_CMSG_CLOEXEC);
  while (count < 0 && errno == EINTR);
  if (count < 0) return std::nullopt;
  result.descriptor = descriptorOf(message);
  if (static_cast<std::size_t>(count) < sizeof result.head) return std::nullopt;
  result.text.resize(static_cast<std::size_t>(count) - sizeof result.head);
  return result;
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

std::optional<std::pair<io::Descriptor, io::Descriptor>> socketPair() {
  std::array<int, 2> ends{};
  if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) return std::nullopt;
  return std::pair(io::Descriptor(ends[0]), io::Descriptor(ends[1]));
}

bool sendOrder(int socket, const DecodeOrder& order) {
  const Request& request = order.request;
  return sendMessage(socket, OrderHead{request.maxWidth, request.maxHeight, request.fit},
                     order.path);
}

std::optional<DecodeOrder> receiveOrder(int socket) {
  auto message = receiveMessage<OrderHead>(socket, limits.pathBytes);
  if (!message) return std::nullopt;
  const OrderHead& head = message->head;
  return DecodeOrder{std::move(message->text), {head.maxWidth, head.maxHeight, head.fit}};
}

bool sendAnswer(int socket, const DecodeAnswer& answer) {
  const auto reason = std::string_view(answer.reason).substr(0, limits.reasonBytes);
  return sendMessage(socket, AnswerHead{answer.kind, answer.width, answer.height}, reason,
                     answer.pixels.number());
}

std::optional<DecodeAnswer> receiveAnswer(int socket) {
  auto message = receiveMessage<AnswerHead>(socket, limits.reasonBytes);
  if (!message) return std::nullopt;
  const AnswerHead& head = message->head;
  return DecodeAnswer{head.kind, head.width, head.height, std::move(message->text),
                      std::move(message->descriptor)};
}

model::Result<io::Descriptor> writePixels(const Picture& picture) {
  io::Descriptor file(memfd_create("picture", MFD_CLOEXEC));
  if (!file) return model::Error{std::strerror(errno)};
  const auto* bytes = reinterpret_cast<const char*>(picture.pixels.data());
  const std::size_t size = picture.byteCount();
  const bool isWritten = transferAll(size, [&](std::size_t done) {
    return pwrite(file.number(), bytes + done, size - done, static_cast<off_t>(done));
  });
  if (!isWritten) return model::Error{std::strerror(errno)};
  return file;
}

model::Result<Picture> readPixels(const DecodeAnswer& answer) {
  const auto side = [](int length) { return static_cast<std::uint64_t>(std::max(length, 0)); };
  const std::uint64_t size = side(answer.width) * side(answer.height) * sizeof(std::uint32_t);
  struct stat status {};
  const bool isFile = fstat(answer.pixels.number(), &status) == 0 && S_ISREG(status.st_mode);
  if (size == 0 || size > limits.pictureBytes || !isFile) return model::Error{"damaged answer"};
  Picture picture{answer.width, answer.height, std::vector<std::uint32_t>(size / 4)};
  auto* bytes = reinterpret_cast<char*>(picture.pixels.data());
  const bool isRead = transferAll(size, [&](std::size_t done) {
    return pread(answer.pixels.number(), bytes + done, size - done, static_cast<off_t>(done));
  });
  if (!isRead) return model::Error{"damaged answer"};
  return picture;
}

}  // namespace desktop::pictures
