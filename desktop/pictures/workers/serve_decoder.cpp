// SPDX-License-Identifier: MIT
#include "desktop/pictures/workers/serve_decoder.h"

#include <unistd.h>

#include <QtGlobal>
#include <exception>
#include <new>

#include "desktop/pictures/decoders/decode_picture.h"
#include "desktop/pictures/pixels/limits.h"
#include "desktop/pictures/workers/decoder_messages.h"
#include "workers/confinement/confinement.h"
#include "workers/greeting.h"
#include "workers/message.h"

namespace desktop::pictures {

namespace {

std::string prepare() {
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  loadDecoders();
  return workers::confine(
      {.memory = limits.workerMemory, .frameBytes = limits.pictureBytes, .hasThreads = true});
}

model::Result<Picture> decodeGuarded(DecodeFunction decode, DecodeOrder& order) {
  try {
    io::FileSource source(std::move(order.file));
    return decode(order.name, source, order.request);
  } catch (const std::bad_alloc&) {
    return model::Error{"not enough memory"};
  } catch (const std::exception& exception) {
    return model::Error{exception.what()};
  }
}

DecodeAnswer answerTo(DecodeOrder order, DecodeFunction decode) {
  const auto picture = decodeGuarded(decode, order);
  if (!picture) return {.kind = DecodeAnswer::Kind::failed, .reason = picture.error().reason};
  if (const auto error = writePixels(*picture, workers::frameOfWorker))
    return {.kind = DecodeAnswer::Kind::failed, .reason = error->reason};
  return {.kind = DecodeAnswer::Kind::decoded, .width = picture->width, .height = picture->height};
}

}  // namespace

int serveDecoder(int socket, DecodeFunction decode) {
  if (decode == nullptr) decode = decodeSource;
  bool isConnected = workers::sendMessage(socket, workers::greetingOf(prepare()));
  while (isConnected) {
    auto order = receiveOrder(socket);
    isConnected = order && sendAnswer(socket, answerTo(*std::move(order), decode));
  }
  // At once: what runs at a usual end may do what the process may not any more.
  _exit(0);
}

}  // namespace desktop::pictures
