// SPDX-License-Identifier: MIT
#include "exchange/puz_file.h"

#include <algorithm>
#include <array>

#include "exchange/puz.h"

namespace kalvon::exchange {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view mark = "ACROSS&DOWN\0"sv;
/// Some publishers put lines of their own before the file.
constexpr std::size_t longest_preamble = 1024;
constexpr std::size_t longest_text = std::size_t{1} << 20;

// Where the fields of the header stand. Numbers have two bytes, the lower one first.
constexpr std::size_t checksum_at = 0x00;
constexpr std::size_t mark_at = 0x02;
constexpr std::size_t version_at = 0x18;
constexpr std::size_t version_length = 4;
constexpr std::size_t size_at = 0x2C;
constexpr std::size_t header_length = 0x34;

constexpr std::string_view mask = "ICHEATED";
constexpr std::size_t section_header_length = 8;

std::uint16_t Checksum(std::string_view bytes, std::uint16_t sum = 0) {
  for (const char byte : bytes) {
    const unsigned rotated = (sum >> 1U) | ((sum & 1U) << 15U);
    sum = static_cast<std::uint16_t>(rotated + static_cast<unsigned char>(byte));
  }
  return sum;
}

std::uint16_t Number(std::string_view bytes, std::size_t place) {
  const auto low = static_cast<unsigned char>(bytes[place]);
  const auto high = static_cast<unsigned char>(bytes[place + 1]);
  return static_cast<std::uint16_t>(low | (high << 8U));
}

std::string NumberBytes(std::size_t number) {
  return {static_cast<char>(number & 0xFFU), static_cast<char>((number >> 8U) & 0xFFU)};
}

/// The texts count with their NUL, but empty ones not at all and clues without it. Before version
/// 1.3 the note did not count.
std::uint16_t TextsChecksum(const PuzFile& file, std::uint16_t sum) {
  const std::size_t last = file.texts.size() - 1;
  for (std::size_t i = 0; i <= last; ++i) {
    const std::string& text = file.texts[i];
    if (text.empty() || (i == last && file.version < "1.3")) continue;
    sum = Checksum(text, sum);
    if (i < PuzFile::texts_before_clues || i == last) sum = Checksum("\0"sv, sum);
  }
  return sum;
}

/// The eight bytes of the header that hold the size and its neighbours.
std::string SizeBytes(const PuzFile& file) {
  const std::size_t clues = file.texts.size() - PuzFile::texts_before_clues - 1;
  return std::string{static_cast<char>(file.width), static_cast<char>(file.height)} +
         NumberBytes(clues) + NumberBytes(file.kind) + NumberBytes(file.lock);
}

/// The bytes of the header up to the version.
std::string Checksums(const PuzFile& file) {
  const std::uint16_t size = Checksum(SizeBytes(file));
  const std::uint16_t all =
      TextsChecksum(file, Checksum(file.state, Checksum(file.solution, size)));
  const std::array<std::uint16_t, 4> parts = {size, Checksum(file.solution), Checksum(file.state),
                                              TextsChecksum(file, 0)};
  std::string bytes = NumberBytes(all).append(mark) + NumberBytes(size);
  for (std::size_t i = 0; i < mask.size(); ++i) {
    const unsigned part = i < 4 ? parts[i] : parts[i - 4] >> 8U;
    bytes += static_cast<char>((part & 0xFFU) ^ static_cast<unsigned char>(mask[i]));
  }
  return bytes;
}

/// The place of the file in bytes that may have a preamble, npos for none.
std::size_t Beginning(std::string_view bytes) {
  const std::size_t place = bytes.substr(0, longest_preamble + mark.size()).find(mark);
  return place == std::string_view::npos || place < mark_at ? std::string_view::npos
                                                            : place - mark_at;
}

/// Takes a text with its NUL off the bytes. A last one may lack it.
std::string TakeText(std::string_view& bytes) {
  const std::string_view text = bytes.substr(0, bytes.find('\0'));
  if (text.size() > longest_text) throw ConversionError(Matter::too_long);
  bytes.remove_prefix(std::min(text.size() + 1, bytes.size()));
  return std::string(text);
}

void TakeSections(std::string_view bytes, PuzFile& file, Remarks& remarks, bool& right) {
  while (bytes.size() >= section_header_length) {
    const std::string name(bytes.substr(0, 4));
    const auto is_capital = [](char letter) { return letter >= 'A' && letter <= 'Z'; };
    if (!std::ranges::all_of(name, is_capital)) return;
    const std::size_t length = Number(bytes, 4);
    const std::uint16_t checksum = Number(bytes, 6);
    bytes.remove_prefix(section_header_length);
    if (length > bytes.size()) {
      remarks.Count(Matter::texts_dropped, name);
      return;
    }
    right &= Checksum(bytes.substr(0, length)) == checksum;
    file.sections.emplace(name, bytes.substr(0, length));
    bytes.remove_prefix(std::min(length + 1, bytes.size()));
  }
}

}  // namespace

bool IsPuz(std::string_view bytes) { return Beginning(bytes) != std::string_view::npos; }

PuzFile ParsePuz(std::string_view bytes, Remarks& remarks) {
  if (!IsPuz(bytes)) throw ConversionError(Matter::unknown_format);
  bytes.remove_prefix(Beginning(bytes));
  if (bytes.size() < header_length) throw ConversionError(Matter::ends_early);
  PuzFile file;
  std::string_view version = bytes.substr(version_at, version_length);
  file.version = TakeText(version);
  file.width = static_cast<unsigned char>(bytes[size_at]);
  file.height = static_cast<unsigned char>(bytes[size_at + 1]);
  const std::size_t texts =
      PuzFile::texts_before_clues + Number(bytes, size_at + 2) + std::size_t{1};
  file.kind = Number(bytes, size_at + 4);
  file.lock = Number(bytes, size_at + 6);

  const std::string_view head = bytes.substr(checksum_at, version_at);
  bytes.remove_prefix(header_length);
  if (bytes.size() < 2 * file.Cells()) throw ConversionError(Matter::ends_early);
  file.solution = bytes.substr(0, file.Cells());
  file.state = bytes.substr(file.Cells(), file.Cells());
  bytes.remove_prefix(2 * file.Cells());
  for (std::size_t i = 0; i < texts; ++i) {
    // The note may be missing.
    if (bytes.empty() && i + 1 < texts) throw ConversionError(Matter::ends_early);
    file.texts.push_back(TakeText(bytes));
  }
  bool right = Checksums(file) == head;
  TakeSections(bytes, file, remarks, right);
  if (!right) remarks.Count(Matter::wrong_checksum);
  return file;
}

std::string AssemblePuz(const PuzFile& file) {
  std::string bytes = Checksums(file) + file.version;
  bytes.resize(size_at, '\0');
  bytes += SizeBytes(file) + file.solution + file.state;
  for (const std::string& text : file.texts) bytes.append(text) += '\0';
  // The usual order; the other sections are none that we write.
  for (const char* name : {"GRBS", "RTBL", "RUSR"}) {
    const auto section = file.sections.find(name);
    if (section == file.sections.end()) continue;
    const std::string& content = section->second;
    bytes += name + NumberBytes(content.size()) + NumberBytes(Checksum(content)) + content;
    bytes += '\0';
  }
  return bytes;
}

}  // namespace kalvon::exchange
