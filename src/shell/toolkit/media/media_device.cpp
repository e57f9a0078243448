// SPDX-License-Identifier: MIT
#include <QFile>
#include <QtEndian>
#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "shell/toolkit/drawing/picture.h"
#include "shell/toolkit/media/media_device_p.h"

namespace toolkit {

namespace {

constexpr MediaDevice devices[] = {
    {"WaveAudio", "RIFF", "WAVE", false},
    {"Sequencer", "MThd", "", false},
    {"AVIVideo", "RIFF", "AVI ", true},
};

constexpr qsizetype kind_at = 8;  // Of a file, and of a stream's head in a film.

// The first chunk of a film is the list that tells of its streams.
constexpr qsizetype list_at = 12;
constexpr qsizetype length_at = list_at + 4;
constexpr qsizetype longest_list = qsizetype{1024} * 1024;

bool HasAt(const QByteArray& bytes, qsizetype at, std::string_view mark) {
  const QByteArrayView wanted(mark.data(), static_cast<qsizetype>(mark.size()));
  return bytes.size() >= at + wanted.size() &&
         QByteArrayView(bytes).sliced(at, wanted.size()) == wanted;
}

/// Whether a number stands at a place and is no larger than a limit, in either direction.
template <typename Integer>
bool KeepsWithin(qint64 limit, const QByteArray& bytes, qsizetype at) {
  if (bytes.size() < at + 4) return false;
  return std::abs(qint64{qFromLittleEndian<Integer>(bytes.sliced(at).constData())}) <= limit;
}

/// Whether no video of a film is too large. Each stream's head, `strh`, tells its kind, and the
/// format that follows it, `strf`, the sides of a video.
bool FramesFit(const QByteArray& head) {
  if (!HasAt(head, list_at, "LIST") || !KeepsWithin<quint32>(longest_list, head, length_at))
    return false;
  constexpr qsizetype width_at = 12;
  constexpr qsizetype height_at = 16;
  qsizetype format = head.indexOf("strf");
  for (qsizetype stream = head.indexOf("strh"); stream >= 0;
       stream = head.indexOf("strh", stream + 1)) {
    if (format < stream) format = head.indexOf("strf", stream);
    if (format < 0) break;
    if (!HasAt(head, stream + kind_at, "vids")) continue;
    if (!KeepsWithin<qint32>(largest_side, head, format + width_at) ||
        !KeepsWithin<qint32>(largest_side, head, format + height_at))
      return false;
  }
  return true;
}

}  // namespace

const MediaDevice* FindMediaDevice(std::string_view type) {
  const auto* found = std::ranges::find(devices, type, &MediaDevice::type);
  return found == std::end(devices) ? nullptr : found;
}

bool Takes(const MediaDevice& device, QFile& file) {
  const QByteArray head = file.peek(length_at + 4 + longest_list);
  return HasAt(head, 0, device.mark) && HasAt(head, kind_at, device.kind) &&
         (!device.shows_video || FramesFit(head));
}

}  // namespace toolkit
