// SPDX-License-Identifier: MIT
#include "desktop/pictures/workers/serve_decoder.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>

#include <QtGlobal>
#include <csignal>
#include <exception>
#include <new>

#include "desktop/pictures/decoders/decode_picture.h"
#include "desktop/pictures/pixels/limits.h"
#include "desktop/pictures/workers/decoder_messages.h"
#include "desktop/pictures/workers/sanitizer.h"

namespace desktop::pictures {

namespace {

void setLimit(__rlimit_resource resource, std::size_t amount) {
  const rlimit limit{amount, amount};
  setrlimit(resource, &limit);
}

void confine() {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  setLimit(RLIMIT_CORE, 0);
  if (!needsAllAddresses) setLimit(RLIMIT_AS, limits.workerAddressSpace);
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

model::Result<Picture> decodeGuarded(DecodeFunction decode, const DecodeOrder& order) {
  try {
    return decode(order.path, order.request);
  } catch (const std::bad_alloc&) {
    return model::Error{"not enough memory"};
  } catch (const std::exception& exception) {
    return model::Error{exception.what()};
  }
}

DecodeAnswer answerTo(const DecodeOrder& order, DecodeFunction decode) {
  const auto picture = decodeGuarded(decode, order);
  if (!picture) return {.kind = DecodeAnswer::Kind::failed, .reason = picture.error().reason};
  auto pixels = writePixels(*picture);
  if (!pixels) return {.kind = DecodeAnswer::Kind::failed, .reason = pixels.error().reason};
  return {.kind = DecodeAnswer::Kind::decoded,
          .width = picture->width,
          .height = picture->height,
          .reason = {},
          .pixels = *std::move(pixels)};
}

}  // namespace

int serveDecoder(int socket, DecodeFunction decode) {
  if (decode == nullptr) decode = decodePicture;
  // Not for processes that a decoder might start.
  fcntl(socket, F_SETFD, FD_CLOEXEC);
  confine();
  bool isConnected = sendAnswer(socket, {.kind = DecodeAnswer::Kind::ready});
  while (isConnected) {
    const auto order = receiveOrder(socket);
    isConnected = order && sendAnswer(socket, answerTo(*order, decode));
  }
  return 0;
}

}  // namespace desktop::pictures
