// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace kalvon::testing {

// Small media of every kind that clues use, made byte by byte.

enum class WaveFormat { pcm8 = 8, pcm16 = 16, ms_adpcm = 2, ima_adpcm = 0x11 };

/// A tone of a tenth of a second for each unit of `tenths`.
std::string WaveFile(WaveFormat format, int channels, int tenths);

/// A short melody, in one track (0) or with a track for the tempo (1).
std::string MidiFile(int format);

enum class VideoCodec { raw24, raw8, video1_16, video1_8, cinepak, mjpeg };

/// Size of the videos in pixels.
inline constexpr int video_width = 64;
inline constexpr int video_height = 48;

/// A video of ten frames a second, with four quarters: red and green above, blue and white below.
std::string VideoFile(VideoCodec codec, bool with_sound, int frames);

}  // namespace kalvon::testing
