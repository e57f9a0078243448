// SPDX-License-Identifier: MIT
#include "exchange/storing.h"

#include <algorithm>

#include "crossword/cell.h"
#include "crossword/clue.h"
#include "crossword/direction.h"
#include "crossword/numbering.h"
#include "exchange/cell_letter.h"
#include "exchange/clue_text.h"
#include "files/run_time_error.h"
#include "letters/unicode_text.h"

namespace kalvon::exchange {
namespace {

/// Whether a text holds what only Serbian has.
bool HoldsSerbian(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = text.size();
    const bool ascii = (text.front() & 0x80) == 0;
    if (TakeLetter(text) == '\0')
      text.remove_prefix(1);
    else if (!ascii || text.size() + 2 < length)  // A digraph with ž takes three bytes.
      return true;
  }
  return false;
}

bool IsEnglish(const Puzzle& puzzle, Language language) {
  if (language != Language::found) return language == Language::english;
  if (!puzzle.language.empty()) return puzzle.language.starts_with("en");
  const auto serbian_clue = [](const PuzzleClue& clue) { return HoldsSerbian(clue.text); };
  const auto serbian_cell = [](const PuzzleCell& cell) { return HoldsSerbian(cell.solution); };
  return !HoldsSerbian(puzzle.title) && std::ranges::none_of(puzzle.clues, serbian_clue) &&
         std::ranges::none_of(puzzle.cells, serbian_cell);
}

/// A crossword of one file, without cells.
Crossword EmptyCrossword(int width, int height) {
  Crossword crossword;
  crossword.nast_sirina = crossword.ukr_sirina = width;
  crossword.nast_visina = crossword.ukr_visina = height;
  crossword.nast_tekuci = crossword.nast_zadnji = 1;
  crossword.ukr_polja = Table<std::string, 3>({{{0, width}, {0, height}, {0, 2}}});
  crossword.rec_broj = Table<std::int32_t, 2>({{{0, width}, {0, height}}});
  crossword.pitanja = Table<std::int32_t, 2>({{{0, width * height / 2}, {0, 3}}});
  const std::array one = {IndexRange{1, 1}};
  crossword.nast_polja = Table<std::int32_t, 1>(one);
  crossword.nast_polja.Mutable(1) = width * height;
  crossword.media_sadrzaj = Table<std::string, 1>(one);
  return crossword;
}

/// Puts one puzzle into the form of this program.
class Storage {
 public:
  Storage(const Puzzle& puzzle, const Storing& storing, Remarks& remarks)
      : puzzle_(puzzle),
        english_(IsEnglish(puzzle, storing.language)),
        lenient_(storing.lenient),
        remarks_(remarks),
        crossword_(EmptyCrossword(puzzle.width, puzzle.height)) {}

  HeadedCrossword Run() {
    StartWords();
    StoreCells();
    Number();
    return {std::move(crossword_),
            {puzzle_.title, puzzle_.author, puzzle_.copyright, puzzle_.description},
            {},
            english_,
            {puzzle_.installments, puzzle_.join}};
  }

 private:
  /// What starts in a cell, across and down.
  struct Start {
    bool starts = false;
    std::string clue;
  };

  Start& At(GridCell cell, int direction) {
    const int cell_place = (cell.y - 1) * puzzle_.width + cell.x - 1;
    return starts_.at(static_cast<std::size_t>(2 * cell_place + direction - direction::across));
  }

  void StartWords() {
    starts_.resize(2 * puzzle_.cells.size());
    for (const PuzzleClue& clue : puzzle_.clues) {
      if (!puzzle_.HasLetter(clue.cell) || At(clue.cell, clue.direction).starts) {
        remarks_.Add({.matter = Matter::clue_without_word, .detail = Name(clue)});
        continue;
      }
      At(clue.cell, clue.direction) = {true, ClueOf(clue)};
    }
    for (const WordStart& word : WordStarts(puzzle_)) {
      for (const int direction : {direction::across, direction::down}) {
        if (!BelongsTo(word.kind, direction)) continue;
        Start& start = At(word.cell, direction);
        if (start.clue.empty())
          remarks_.Add({.matter = Matter::word_without_clue, .cell = word.cell});
        start.starts = true;
      }
    }
  }

  static std::string Name(const PuzzleClue& clue) {
    return (clue.direction == direction::across ? "A" : "D") + clue.number + ". " + clue.text;
  }

  std::string ClueOf(const PuzzleClue& clue) {
    if (clue.medium.empty()) return CodedClue(clue.text, english_, remarks_);
    return "/" + clue.medium + "/" + CodedText(clue.text, english_, remarks_);
  }

  void StoreCells() {
    for (int y = 1; y <= puzzle_.height; ++y) {
      for (int x = 1; x <= puzzle_.width; ++x) {
        const PuzzleCell& cell = puzzle_.At({x, y});
        if (cell.kind != CellKind::letter) {
          crossword_.ukr_polja.Mutable(x, y, 1) =
              cell.kind == CellKind::block ? gray_block : black_square;
          ++crossword_.br_crnih;
        } else {
          StoreLetter({x, y}, cell);
        }
      }
    }
  }

  void StoreLetter(GridCell cell, const PuzzleCell& letter) {
    const Start& across = At(cell, direction::across);
    const Start& down = At(cell, direction::down);
    std::string text(1, CellLetter(letter.solution, cell, english_, lenient_, remarks_));
    if (!letter.entry.empty()) {
      if (const char entry = EntryLetter(letter.entry, english_); entry != '\0')
        text += entry;
      else
        remarks_.Count(Matter::entry_lost);
    }
    text.append("$0$").append(across.starts ? "1$" : "0$").append(down.starts ? "1$" : "0$");
    text.append(letter.blank_right ? "1" : "0").append(letter.blank_below ? "1" : "0");
    crossword_.ukr_polja.Mutable(cell.x, cell.y, 1) = text;
    if (across.starts) ++crossword_.br_vodoravnih;
    if (down.starts) ++crossword_.br_uspravnih;
    if (!across.starts && !down.starts) return;
    std::string& attributes = crossword_.ukr_polja.Mutable(cell.x, cell.y, 2);
    attributes = across.starts ? "01" : "00";
    attributes += down.starts ? "1$$$$" : "0$$$$";
    attributes.append(across.clue).append("$").append(down.clue).append("$");
  }

  void Number() {
    const auto starting = [](const Start& start) { return start.starts; };
    if (std::ranges::none_of(starts_, starting)) throw ConversionError(Matter::no_words);
    try {
      NumberClues(crossword_, [] {});
    } catch (const files::RuntimeError&) {
      throw ConversionError(Matter::too_many_numbers);
    }
    CompareNumbers();
  }

  void CompareNumbers() {
    Remark differ{.matter = Matter::numbers_differ, .times = 0};
    for (int y = 1; y <= puzzle_.height; ++y) {
      for (int x = 1; x <= puzzle_.width; ++x) {
        const std::string& theirs = puzzle_.At({x, y}).number;
        const std::string ours = std::to_string(crossword_.rec_broj(x, y));
        if (theirs.empty() || theirs == ours || ++differ.times > 1) continue;
        differ.cell = {x, y};
        differ.detail = theirs + " → " + (ours == "0" ? "-" : ours);
      }
    }
    if (differ.times > 0) remarks_.Add(differ);
  }

  const Puzzle& puzzle_;
  bool english_;
  bool lenient_;
  Remarks& remarks_;
  Crossword crossword_;
  std::vector<Start> starts_;
};

}  // namespace

HeadedCrossword Store(const Puzzle& puzzle, const Storing& storing, Remarks& remarks) {
  return Storage(puzzle, storing, remarks).Run();
}

}  // namespace kalvon::exchange
