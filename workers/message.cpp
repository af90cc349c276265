// SPDX-License-Identifier: MIT
#include "workers/message.h"

#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace workers {

namespace {

constexpr std::size_t mostDescriptors = 4;  // that are looked at, to be closed but for the first

struct Control {
  alignas(cmsghdr) std::array<char, CMSG_SPACE(mostDescriptors * sizeof(int))> bytes{};
};

void attach(int descriptor, msghdr& message, Control& control) {
  message.msg_control = control.bytes.data();
  message.msg_controllen = CMSG_SPACE(sizeof(int));
  cmsghdr* rights = CMSG_FIRSTHDR(&message);
  rights->cmsg_level = SOL_SOCKET;
  rights->cmsg_type = SCM_RIGHTS;
  rights->cmsg_len = CMSG_LEN(sizeof(int));
  std::memcpy(CMSG_DATA(rights), &descriptor, sizeof(int));
}

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

}  // namespace

std::optional<std::pair<io::Descriptor, io::Descriptor>> socketPair() {
  std::array<int, 2> ends{};
  if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) return std::nullopt;
  return std::pair(io::Descriptor(ends[0]), io::Descriptor(ends[1]));
}

bool sendMessage(int socket, std::span<const std::uint8_t> bytes, int descriptor) {
  iovec part{const_cast<std::uint8_t*>(bytes.data()), bytes.size()};
  msghdr message{};
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  Control control;
  if (descriptor >= 0) attach(descriptor, message, control);
  ssize_t sent = 0;
  do sent = sendmsg(socket, &message, MSG_NOSIGNAL);
  while (sent < 0 && errno == EINTR);
  return sent >= 0;
}

std::optional<Message> receiveMessage(int socket, std::size_t longest, Guests guests) {
  Message result{.bytes = std::vector<std::uint8_t>(longest)};
  iovec part{result.bytes.data(), longest};
  msghdr message{};
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  Control control;
  if (guests == Guests::taken) {
    message.msg_control = control.bytes.data();
    message.msg_controllen = control.bytes.size();
  }
  ssize_t count = 0;
  do count = recvmsg(socket, &message, MSG_CMSG_CLOEXEC);
  while (count < 0 && errno == EINTR);
  if (guests == Guests::taken && count >= 0) result.descriptor = descriptorOf(message);
  if (count <= 0 || (message.msg_flags & MSG_TRUNC) != 0) return std::nullopt;
  result.bytes.resize(static_cast<std::size_t>(count));
  return result;
}

}  // namespace workers
