// SPDX-License-Identifier: MIT
//
// Uncompressed sound: the many codes for linear samples as the platform's one, 'lpcm'.
#pragma once

#include <optional>

#include "media/movie/tracks/sound_fields.h"
#include "model/media_asset.h"

namespace media::movie {

// The stream description of linear samples; none for codes of compressed sound.
std::optional<model::AudioStreamDescription> linearSound(model::FourCharCode code,
                                                         const SoundFields& fields);

// The description of packed linear samples: one frame a packet. `flags` without the packed flag.
model::AudioStreamDescription packedSound(double sampleRate, std::uint32_t channels,
                                          std::uint32_t bitsPerChannel, std::uint32_t flags);

// Format flags of linear samples (Core Audio's kAudioFormatFlag...).
inline constexpr std::uint32_t linearIsFloat = 1;
inline constexpr std::uint32_t linearIsBigEndian = 2;
inline constexpr std::uint32_t linearIsSigned = 4;
inline constexpr std::uint32_t linearIsPacked = 8;

}  // namespace media::movie
