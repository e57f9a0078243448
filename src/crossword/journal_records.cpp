// SPDX-License-Identifier: MIT
#include "crossword/journal_records.h"

#include <algorithm>
#include <type_traits>

#include "crossword/direction.h"
#include "crossword/hash.h"

namespace kalvon {

namespace {

constexpr std::size_t head_size = 8;

// The two archives write and read the same fields, which Fields names once. Numbers take seven bits
// to a byte, the lowest first; the eighth says that more follow. Texts and lists begin with their
// length.

class Encoder {
 public:
  template <typename Number>
  void operator()(Number number) {
    auto rest = static_cast<std::uint64_t>(number);
    for (; rest >= 0x80; rest >>= 7) bytes += static_cast<char>(rest | 0x80);
    bytes += static_cast<char>(rest);
  }
  void operator()(const std::string& text) {
    (*this)(text.size());
    bytes += text;
  }
  template <typename List, typename Each>
  void All(const List& list, Each each) {
    (*this)(list.size());
    for (const auto& element : list) each(element);
  }

  std::string bytes;
};

class Decoder {
 public:
  explicit Decoder(std::string_view bytes) : bytes_(bytes) {}

  template <typename Number>
  void operator()(Number& number) {
    const std::uint64_t whole = Whole();
    number = static_cast<Number>(whole);
    if (static_cast<std::uint64_t>(number) != whole) failed_ = true;
  }
  void operator()(std::string& text) {
    std::size_t size = 0;
    (*this)(size);
    if (size > bytes_.size()) failed_ = true;
    if (failed_) return;
    text = bytes_.substr(0, size);
    bytes_.remove_prefix(size);
  }
  template <typename List, typename Each>
  void All(List& list, Each each) {
    std::size_t size = 0;
    (*this)(size);
    // Each element takes a byte or more, so a wrong size ends with the bytes.
    list.reserve(std::min(size, bytes_.size()));
    for (; size > 0 && !failed_; --size) each(list.emplace_back());
  }
  [[nodiscard]] bool TookAll() const { return !failed_ && bytes_.empty(); }

 private:
  std::uint64_t Whole() {
    std::uint64_t number = 0;
    for (unsigned shift = 0; !bytes_.empty() && shift < 64; shift += 7) {
      const auto byte = static_cast<unsigned char>(bytes_.front());
      bytes_.remove_prefix(1);
      number |= std::uint64_t{byte & 0x7FU} << shift;
      if (byte < 0x80) return number;
    }
    failed_ = true;
    return 0;
  }

  std::string_view bytes_;
  bool failed_ = false;
};

template <typename Archive, typename AnyRecord>
void Fields(Archive& archive, AnyRecord& record) {
  archive(record.kind);
  archive(record.time);
  archive(record.number);
  if (record.kind == RecordKind::earlier) {  // Others would take 21 bytes for saying nothing.
    archive(record.waiting.from);
    archive(record.waiting.to);
    archive(record.laid);
  }
  archive(record.place);
  archive(record.step.kind);
  archive(record.step.word.first.x);
  archive(record.step.word.first.y);
  archive(record.step.word.direction);
  archive.All(record.step.changes, [&](auto& change) {
    archive(change.cell.x);
    archive(change.cell.y);
    archive(change.before);
    archive(change.after);
  });
}

/// Neither what ends the letters of a cell nor what could end its line: a stranger's journal must
/// not get into the form of a crossword file.
bool FitsCell(std::string_view letters) {
  return letters.find_first_of("$\n") == std::string_view::npos;
}

bool IsSound(const Record& record) {
  const auto known = [](auto value, auto first, auto last) {
    return value >= first && value <= last;
  };
  return known(record.kind, RecordKind::opened, RecordKind::more) &&
         known(record.step.kind, StepKind::word_entered, StepKind::word_typed) &&
         known(record.step.word.direction, 0, direction::down) &&
         std::ranges::all_of(record.step.changes, [](const LetterChange& change) {
           return FitsCell(change.before) && FitsCell(change.after);
         });
}

void PutNumber(std::string& bytes, std::uint64_t number) {
  for (int i = 0; i < 4; ++i, number >>= 8) bytes += static_cast<char>(number & 0xFF);
}

std::uint64_t NumberAt(std::string_view bytes, std::size_t place) {
  std::uint64_t number = 0;
  for (std::size_t i = 4; i-- > 0;)
    number = number << 8 | static_cast<unsigned char>(bytes[place + i]);
  return number;
}

std::uint64_t Checksum(std::string_view fields) { return Hash(fields) >> 32; }

}  // namespace

std::string Encode(const Record& record) {
  Encoder fields;
  Fields(fields, record);
  std::string bytes;
  PutNumber(bytes, fields.bytes.size());
  PutNumber(bytes, Checksum(fields.bytes));
  return bytes += fields.bytes;
}

std::optional<Record> TakeRecord(std::string_view& bytes) {
  if (bytes.size() < head_size) return std::nullopt;
  const std::uint64_t size = NumberAt(bytes, 0);
  if (size > bytes.size() - head_size) return std::nullopt;
  const std::string_view fields = bytes.substr(head_size, size);
  if (Checksum(fields) != NumberAt(bytes, 4)) return std::nullopt;
  Decoder decoder(fields);
  std::optional<Record> record(std::in_place);
  Fields(decoder, *record);
  if (!decoder.TookAll() || !IsSound(*record)) return std::nullopt;
  bytes.remove_prefix(head_size + size);
  return record;
}

}  // namespace kalvon
