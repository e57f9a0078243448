// SPDX-License-Identifier: MIT
#include "support/media_files.h"

#include <QBuffer>
#include <QImage>
#include <cmath>

#include "support/bytes.h"

namespace kalvon::testing {

namespace {

std::string High(unsigned value, int bytes) {
  const std::string low = Number(value, bytes);
  return {low.rbegin(), low.rend()};
}

std::string Chunk(const std::string& name, const std::string& content) {
  return name + Low4(content.size()) + content + std::string(content.size() % 2, '\0');
}

std::string List(const std::string& name, const std::string& kind, const std::string& content) {
  return Chunk(name, kind + content);
}

constexpr int sound_rate = 8000;
constexpr int adpcm_block = 256;  // Bytes, for each channel.

int SamplesOfBlock(WaveFormat format) {
  return format == WaveFormat::ms_adpcm ? (adpcm_block - 7) * 2 + 2 : (adpcm_block - 4) * 2 + 1;
}

std::string SoundHead(WaveFormat format, int channels) {
  const bool packed = format == WaveFormat::ms_adpcm || format == WaveFormat::ima_adpcm;
  const int bits = packed ? 4 : static_cast<int>(format);
  const int block = packed ? adpcm_block * channels : channels * bits / 8;
  const int rate = packed ? sound_rate * block / SamplesOfBlock(format) : sound_rate * block;
  std::string head = Low2(packed ? static_cast<int>(format) : 1) + Low2(channels) +
                     Low4(sound_rate) + Low4(rate) + Low2(block) + Low2(bits);
  if (!packed) return head;
  std::string more = Low2(SamplesOfBlock(format));
  if (format == WaveFormat::ms_adpcm) {
    more += Low2(7);
    for (const int weight : {256, 0, 512, -256, 0, 0, 192, 64, 240, 0, 460, -208, 392, -232})
      more += Low2(weight);
  }
  return head + Low2(static_cast<int>(more.size())) + more;
}

std::string Tone(WaveFormat format, int channels, int samples) {
  std::string tone;
  for (int i = 0; i < samples; ++i) {
    const double wave = std::sin(i * 0.35);
    for (int channel = 0; channel < channels; ++channel)
      tone += format == WaveFormat::pcm8 ? Number(static_cast<int>(128 + 60 * wave), 1)
                                         : Low2(static_cast<int>(15000 * wave));
  }
  return tone;
}

/// Blocks of any samples: what counts is that the decoder takes them.
std::string PackedNoise(WaveFormat format, int channels, int samples) {
  std::string head;
  const auto for_each_channel = [&](const std::string& field) {
    for (int channel = 0; channel < channels; ++channel) head += field;
  };
  if (format == WaveFormat::ms_adpcm)
    for (const auto& field : {Number(0, 1), Low2(16), Low2(0), Low2(0)}) for_each_channel(field);
  else
    for_each_channel(Low4(0));
  const std::string data(static_cast<std::size_t>(adpcm_block * channels) - head.size(), '\x18');
  std::string blocks;
  for (int done = 0; done < samples; done += SamplesOfBlock(format)) blocks += head + data;
  return blocks;
}

enum Quarter { red, green, blue, white };

constexpr QRgb colours[] = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF};

Quarter QuarterAt(int x, int y) {
  return static_cast<Quarter>((x >= video_width / 2 ? 1 : 0) + (y >= video_height / 2 ? 2 : 0));
}

/// Runs over blocks of the frame, from the top or from the bottom.
template <typename Encode>
std::string EachBlock(int size, bool from_bottom, Encode encode) {
  std::string bytes;
  for (int row = 0; row < video_height; row += size)
    for (int x = 0; x < video_width; x += size)
      bytes += encode(QuarterAt(x, from_bottom ? video_height - 1 - row : row));
  return bytes;
}

/// One strip, with a codebook of the four colours and a vector for each block of 4 by 4.
std::string CinepakFrame() {
  // Brightness and the two differences from it.
  constexpr int shades[][3] = {{73, -36, 91}, {145, -73, -73}, {36, 109, -18}, {255, 0, 0}};
  std::string codebook;
  for (const auto& [bright, u, v] : shades)
    codebook +=
        std::string(4, static_cast<char>(bright)) + static_cast<char>(u) + static_cast<char>(v);
  const std::string vectors = EachBlock(
      4, false, [](Quarter quarter) { return std::string(1, static_cast<char>(quarter)); });
  const auto chunk = [](unsigned id, const std::string& content) {
    return High(id, 2) + High(static_cast<unsigned>(content.size() + 4), 2) + content;
  };
  const std::string chunks = chunk(0x2200, codebook) + chunk(0x3200, vectors);
  const std::string size = High(video_height, 2) + High(video_width, 2);
  const std::string strip = High(0x1000, 2) + High(static_cast<unsigned>(chunks.size() + 12), 2) +
                            High(0, 4) + size + chunks;
  const std::string rest = High(video_width, 2) + High(video_height, 2) + High(1, 2) + strip;
  return std::string(1, '\0') + High(static_cast<unsigned>(rest.size() + 4), 3) + rest;
}

std::string JpegFrame() {
  QImage image(video_width, video_height, QImage::Format_RGB32);
  for (int y = 0; y < video_height; ++y)
    for (int x = 0; x < video_width; ++x) image.setPixel(x, y, colours[QuarterAt(x, y)]);
  QBuffer file;
  file.open(QBuffer::WriteOnly);
  image.save(&file, "JPG", 95);
  return file.data().toStdString();
}

std::string Frame(VideoCodec codec) {
  switch (codec) {
    case VideoCodec::raw24:
      return EachBlock(1, true, [](int q) { return Number(colours[q], 3); });
    case VideoCodec::raw8:
      return EachBlock(1, true, [](int q) { return Number(q, 1); });
    case VideoCodec::video1_16:
      return EachBlock(4, true, [](int q) {
        constexpr int shades[] = {0xFC00, 0x83E0, 0x801F, 0xFFFF};
        return Low2(shades[q]);
      });
    case VideoCodec::video1_8:
      return EachBlock(4, true, [](int q) { return Number(q, 1) + '\x80'; });
    case VideoCodec::cinepak:
      return CinepakFrame();
    case VideoCodec::mjpeg:
      return JpegFrame();
  }
  return {};
}

struct CodecName {
  std::string handler;
  std::string compression;
  int bits;
};

CodecName NameOf(VideoCodec codec) {
  switch (codec) {
    case VideoCodec::raw24:
      return {"DIB ", Low4(0), 24};
    case VideoCodec::raw8:
      return {"DIB ", Low4(0), 8};
    case VideoCodec::video1_16:
      return {"msvc", "CRAM", 16};
    case VideoCodec::video1_8:
      return {"msvc", "CRAM", 8};
    case VideoCodec::cinepak:
      return {"cvid", "cvid", 24};
    case VideoCodec::mjpeg:
      return {"MJPG", "MJPG", 24};
  }
  return {};
}

std::string StreamHead(const std::string& kind, const std::string& handler, int scale, int rate,
                       int length, int sample_size) {
  return kind + handler + Low4(0) + Low4(0) + Low4(0) + Low4(scale) + Low4(rate) + Low4(0) +
         Low4(length) + Low4(0) + Low4(0xFFFFFFFF) + Low4(sample_size) + Low4(0) + Low4(0);
}

std::string VideoStream(VideoCodec codec, int frames) {
  const CodecName name = NameOf(codec);
  std::string palette;
  if (name.bits == 8) {
    for (const QRgb colour : colours) palette += Number(colour & 0xFFFFFFU, 4);
    palette.resize(1024);
  }
  const std::string format = Low4(40) + Low4(video_width) + Low4(video_height) + Low2(1) +
                             Low2(name.bits) + name.compression + Low4(0) + Low4(0) + Low4(0) +
                             Low4(name.bits == 8 ? 256 : 0) + Low4(0) + palette;
  return List(
      "LIST", "strl",
      Chunk("strh", StreamHead("vids", name.handler, 1, 10, frames, 0)) + Chunk("strf", format));
}

}  // namespace

std::string WaveFile(WaveFormat format, int channels, int tenths) {
  const int samples = sound_rate * tenths / 10;
  const bool pcm = format == WaveFormat::pcm8 || format == WaveFormat::pcm16;
  const std::string sound =
      pcm ? Tone(format, channels, samples) : PackedNoise(format, channels, samples);
  return List("RIFF", "WAVE",
              Chunk("fmt ", SoundHead(format, channels)) +
                  (pcm ? "" : Chunk("fact", Low4(samples))) + Chunk("data", sound));
}

std::string MidiFile(int format) {
  const auto track = [](const std::string& events) {
    const std::string content = events + std::string("\0\xFF\x2F\0", 4);
    return "MTrk" + High(static_cast<unsigned>(content.size()), 4) + content;
  };
  std::string notes;
  for (const char note : {'\x3C', '\x40', '\x43'}) {
    notes += std::string("\0\x90", 2) + note + '\x5A';  // A loud note at once,
    notes += std::string("\x18\x80") + note + '\0';     // and its end a quarter of a beat later.
  }
  const std::string tempo("\0\xFF\x51\x03\x07\xA1\x20", 7);  // Two beats a second.
  const std::string tracks = format == 0 ? track(tempo + notes) : track(tempo) + track(notes);
  return "MThd" + High(6, 4) + High(static_cast<unsigned>(format), 2) +
         High(format == 0 ? 1 : 2, 2) + High(96, 2) + tracks;
}

std::string VideoFile(VideoCodec codec, bool with_sound, int frames) {
  const int tenth = sound_rate / 10;
  const std::string frame = Frame(codec);
  const std::string sound = Tone(WaveFormat::pcm8, 1, tenth);
  const std::string name = NameOf(codec).compression == Low4(0) ? "00db" : "00dc";
  std::string movie;
  std::string index;
  const auto add = [&](const std::string& chunk, const std::string& content) {
    index += chunk + Low4(0x10) + Low4(movie.size() + 4) + Low4(content.size());
    movie += Chunk(chunk, content);
  };
  for (int i = 0; i < frames; ++i) {
    add(name, frame);
    if (with_sound) add("01wb", sound);
  }
  std::string head =
      Chunk("avih", Low4(100'000) + Low4(0) + Low4(0) + Low4(0x10) + Low4(frames) + Low4(0) +
                        Low4(with_sound ? 2 : 1) + Low4(0) + Low4(video_width) +
                        Low4(video_height) + std::string(16, '\0'));
  head += VideoStream(codec, frames);
  if (with_sound) {
    head += List("LIST", "strl",
                 Chunk("strh", StreamHead("auds", Low4(0), 1, sound_rate, frames * tenth, 1)) +
                     Chunk("strf", SoundHead(WaveFormat::pcm8, 1)));
  }
  return List("RIFF", "AVI ",
              List("LIST", "hdrl", head) + List("LIST", "movi", movie) + Chunk("idx1", index));
}

}  // namespace kalvon::testing
