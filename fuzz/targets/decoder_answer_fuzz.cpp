// SPDX-License-Identifier: MIT
//
// What a decoder of pictures, taken over by a file, may say to the program that started it, with a
// frame of no more than the message's own bytes.
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>

#include "desktop/pictures/workers/decoder_messages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using desktop::pictures::DecodeAnswer;
  static const io::Descriptor frame(memfd_create("frame", MFD_CLOEXEC));
  const auto answer = desktop::pictures::answerOfBytes({data, size});
  if (!answer || answer->kind != DecodeAnswer::Kind::decoded) return 0;
  if (ftruncate(frame.number(), 0) != 0 || pwrite(frame.number(), data, size, 0) < 0) return 0;
  const auto picture = desktop::pictures::readPixels(*answer, frame.number());
  if (picture && picture->byteCount() > size) std::abort();
  return 0;
}
