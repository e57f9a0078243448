// SPDX-License-Identifier: MIT
#include "exchange/check.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <iterator>
#include <set>

#include "crossword/cell.h"
#include "crossword/clue.h"
#include "crossword/direction.h"
#include "crossword/fields.h"
#include "crossword/installments.h"
#include "crossword/words.h"
#include "exchange/cell_letter.h"
#include "exchange/crossword_file.h"
#include "exchange/media.h"
#include "exchange/qvm.h"
#include "letters/letter_conversion.h"

namespace kalvon::exchange {
namespace {

/// How a file of a kind begins: some letters at its start, and some behind eight bytes.
struct Signature {
  std::string_view ending;
  std::string_view first;
  std::string_view ninth;
};
constexpr Signature signatures[] = {
    {"bmp", "BM", ""}, {"wav", "RIFF", "WAVE"}, {"mid", "MThd", ""}, {"avi", "RIFF", "AVI "}};

bool IsWhatItsNameSays(const std::string& name, std::string_view bytes) {
  const auto* const kind = std::ranges::find_if(
      signatures, [&](const Signature& signature) { return EndingOf(name) == signature.ending; });
  return kind == std::end(signatures) || (bytes.starts_with(kind->first) && bytes.size() > 12 &&
                                          bytes.substr(8).starts_with(kind->ninth));
}

/// Looks at one crossword.
class Inspection {
 public:
  Inspection(const HeadedCrossword& headed, Remarks& remarks)
      : crossword_(headed.crossword), english_(headed.english), remarks_(remarks) {}

  void Run() {
    LookAtFiles();
    for (int y = 1; y <= crossword_.ukr_visina; ++y) {
      for (int x = 1; x <= crossword_.ukr_sirina; ++x) {
        LookAtCell({x, y});
        LookAtWords({x, y});
      }
    }
    LookAtMedia();
  }

 private:
  void Tell(Matter matter, GridCell cell, const std::string& detail = "") {
    remarks_.Add({.matter = matter, .cell = cell, .detail = detail});
  }

  [[nodiscard]] const std::string& Text(GridCell cell, int kind) const {
    return crossword_.ukr_polja(cell.x, cell.y, kind);
  }

  [[nodiscard]] bool HasLetter(GridCell cell) const {
    return cell.x >= 1 && cell.y >= 1 && cell.x <= crossword_.ukr_sirina &&
           cell.y <= crossword_.ukr_visina && IsLetterCell(Text(cell, 1));
  }

  void LookAtFiles() {
    for (int i = 1; i <= crossword_.nast_zadnji; ++i) {
      const std::string& path = crossword_.nast_staza(i);
      const int cells = crossword_.nast_sirina * crossword_.nast_visina;
      if (!path.empty() && crossword_.nast_polja(i) < cells)
        Tell(Matter::cells_missing, {}, std::string(FileName(path)));
    }
  }

  [[nodiscard]] bool IsKnown(char letter) const {
    return letter == unknown_letter || azbuka(english_).find(letter) != std::string_view::npos;
  }

  /// A letter cell has one or two letters and four fields, the last of two digits.
  [[nodiscard]] bool IsWellFormed(std::string_view cell) const {
    const std::string_view letters = cell.substr(0, cell.find('$'));
    const std::string_view fields = FieldsIn(cell);
    const auto known = [&](char letter) { return IsKnown(letter); };
    return (letters.size() == 1 || letters.size() == 2) && std::ranges::all_of(letters, known) &&
           fields.size() == 9 && std::ranges::count(fields, '$') == 4;
  }

  void LookAtCell(GridCell cell) {
    const std::string& text = Text(cell, 1);
    const std::string& attributes = Text(cell, 2);
    if (!IsLetterCell(text)) {
      if (text != gray_block && text != black_square) Tell(Matter::cell_form, cell, text);
      if (KindOf(attributes) != 0) Tell(Matter::start_on_block, cell);
      return;
    }
    if (!IsWellFormed(text)) return Tell(Matter::cell_form, cell, text);
    const bool across = FieldsIn(text)[3] == '1';
    const bool down = FieldsIn(text)[5] == '1';
    if (across != StartsWord(attributes, direction::across) ||
        down != StartsWord(attributes, direction::down))
      Tell(Matter::marks_differ, cell);
  }

  void LookAtWords(GridCell cell) {
    if (!HasLetter(cell)) return;
    for (const int direction : {direction::across, direction::down}) {
      const bool is_across = direction == direction::across;
      const GridCell before = {cell.x - (is_across ? 1 : 0), cell.y - (is_across ? 0 : 1)};
      const GridCell behind = {cell.x + (is_across ? 1 : 0), cell.y + (is_across ? 0 : 1)};
      if (StartsWord(Text(cell, 2), direction)) {
        LookAtClue(cell, direction);
        if (!HasLetter(behind)) Tell(Matter::short_word, cell);
      } else if (!HasLetter(before) && HasLetter(behind)) {
        Tell(Matter::word_without_start, cell);
      }
    }
  }

  void LookAtClue(GridCell cell, int direction) {
    const std::string& attributes = Text(cell, 2);
    const auto closings = std::ranges::count(attributes, '$');
    if (closings < (direction == direction::across ? 5 : 6))
      return Tell(Matter::clue_not_closed, cell);
    if (Trimmed(ReadClue(attributes, direction).text).empty())
      Tell(Matter::word_without_clue, cell);
  }

  void LookAtMedia() {
    std::set<std::string> named;
    for (const MediaClue& clue : MediaClues(crossword_)) {
      named.insert(clue.medium);
      const auto medium = MediumInPack(crossword_, clue);
      if (!medium)
        Tell(Matter::medium_refused, clue.cell, clue.medium);
      else if (static_cast<std::int64_t>(medium->bytes.size()) < medium->size)
        Tell(Matter::medium_cut, clue.cell, clue.medium);
      else if (!IsWhatItsNameSays(clue.medium, medium->bytes))
        Tell(Matter::medium_unplayable, clue.cell, clue.medium);
    }
    for (int i = 1; i <= crossword_.nast_zadnji; ++i)
      for (const std::string& name : NamesInTable(crossword_.media_sadrzaj(i)))
        if (!named.contains(name)) Tell(Matter::unused_medium, {}, name);
  }

  /// Every second field of a table is a name.
  static std::vector<std::string> NamesInTable(std::string_view table) {
    std::vector<std::string> names;
    for (table = Behind(table, '/'); !table.empty(); table = Behind(table, '/', 2))
      names.emplace_back(table.substr(0, table.find('/')));
    return names;
  }

  const Crossword& crossword_;
  bool english_;
  Remarks& remarks_;
};

/// Whether the program opens a file of this name; one that numbers an installment is found with
/// its crossword.
bool IsName(const std::string& base) {
  const bool installment = QString::fromStdString(base).size() == 8;
  return IsTakenName(installment ? base.substr(0, base.size() - 3) : base);
}

}  // namespace

void Check(const std::string& path, Remarks& remarks) {
  const QFileInfo file(QString::fromStdString(path));
  try {
    if (!IsQvm(path) && EndingOf(path) != "qvd") {
      ReadCrosswordFile(path, {}, remarks);
      return;
    }
    const std::string base = file.completeBaseName().toStdString();
    if (!IsName(base)) remarks.Add({.matter = Matter::refused_name, .detail = base});
    const QString crossword = file.dir().filePath(file.completeBaseName() + QStringLiteral(".qvm"));
    const HeadedCrossword headed = ReadCrosswordFile(crossword.toStdString(), {}, remarks);
    Inspection(headed, remarks).Run();
  } catch (const ConversionError& error) {
    remarks.Add(error.Why());
  }
}

}  // namespace kalvon::exchange
