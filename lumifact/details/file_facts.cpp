// SPDX-License-Identifier: MIT
#include "lumifact/details/file_facts.h"

#include "model/number_text.h"

namespace lumifact {

std::string headerText(const FileFacts& facts) {
  std::string text = facts.path;
  text.append("\nFile Date: ").append(facts.fileDate);
  text.append("\nFile Size: ").append(facts.fileSize);
  text.append("\nAsset Height: ").append(model::integerText(facts.pixelHeight));
  text.append("\nAsset Width: ").append(model::integerText(facts.pixelWidth));
  return text.append("\n");
}

model::Dictionary fileSummaryRecord(const FileFacts& facts) {
  return {
      {"LF742J01FilePath", facts.path},
      {"LF742J02FileDate", facts.fileDate},
      {"LF742J03FileSize", facts.fileSize},
      {"LF742J04AssetHeight", model::integerText(facts.pixelHeight)},
      {"LF742J05AssetWidth", model::integerText(facts.pixelWidth)},
  };
}

}  // namespace lumifact
