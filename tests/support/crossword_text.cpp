// SPDX-License-Identifier: MIT
#include "support/crossword_text.h"

#include <algorithm>

namespace kalvon::testing {
namespace {

/// The solution rows with what follows from them. Cells count from 1.
class Puzzle {
 public:
  explicit Puzzle(const CrosswordText& text)
      : text_(text),
        width_(text.rows.empty() ? 0 : static_cast<int>(text.rows.front().size())),
        height_(static_cast<int>(text.rows.size())) {
    Number();
  }

  [[nodiscard]] int width() const { return width_; }
  [[nodiscard]] int height() const { return height_; }

  [[nodiscard]] std::string Cell(int x, int y) const {
    const char solution = At(text_.rows, x, y);
    if (solution == '#') return "$1$";
    if (solution == '.') return "";
    std::string cell(1, solution);
    if (const char letter = At(text_.letters, x, y); letter != ' ') cell += letter;
    cell += "$0$";
    cell += StartsAcross(x, y) ? "1$" : "0$";
    cell += StartsDown(x, y) ? "1$" : "0$";
    const auto border = text_.borders.find({x, y});
    return cell + (border == text_.borders.end() ? "00" : border->second);
  }

  [[nodiscard]] std::string Attributes(int x, int y) const {
    const auto number = numbers_.find({x, y});
    if (number == numbers_.end()) return "";
    const bool across = StartsAcross(x, y);
    const bool down = StartsDown(x, y);
    std::string line = std::string("0") + (across ? '1' : '0') + (down ? '1' : '0') + "$$$$";
    if (across) line += Clue('A', number->second);
    line += '$';
    if (down) line += Clue('D', number->second);
    return line + '$';
  }

 private:
  static char At(const std::vector<std::string>& rows, int x, int y) {
    const auto row = static_cast<std::size_t>(y - 1);
    const auto column = static_cast<std::size_t>(x - 1);
    return row < rows.size() && column < rows[row].size() ? rows[row][column] : ' ';
  }

  [[nodiscard]] bool Letter(int x, int y) const {
    const char solution = At(text_.rows, x, y);
    return solution != ' ' && solution != '#' && solution != '.';
  }
  [[nodiscard]] bool StartsAcross(int x, int y) const {
    return Letter(x, y) && !Letter(x - 1, y) && Letter(x + 1, y);
  }
  [[nodiscard]] bool StartsDown(int x, int y) const {
    return Letter(x, y) && !Letter(x, y - 1) && Letter(x, y + 1);
  }

  void Number() {
    std::vector<std::pair<int, int>> starts;
    for (int y = 1; y <= height_; ++y) {
      for (int x = 1; x <= width_; ++x) {
        if (StartsAcross(x, y) || StartsDown(x, y)) starts.emplace_back(x, y);
      }
    }
    // The last mark decides how the program joins, and so numbers.
    const auto last =
        std::find_if(text_.marks.rbegin(), text_.marks.rend(), [](int mark) { return mark > 0; });
    if ((text_.marks.rend() - last) % 2 == 1) std::ranges::sort(starts);
    for (const auto& start : starts) numbers_.emplace(start, numbers_.size() + 1);
  }

  [[nodiscard]] std::string Clue(char direction, std::size_t number) const {
    const std::string name = direction + std::to_string(number);
    const auto clue = text_.clues.find(name);
    return clue == text_.clues.end() ? name : clue->second;
  }

  const CrosswordText& text_;
  int width_;
  int height_;
  std::map<std::pair<int, int>, std::size_t> numbers_;
};

std::string ThreePlaces(int number) {
  const std::string digits = std::to_string(number);
  return std::string(3 - std::min<std::size_t>(3, digits.size()), ' ') + digits;
}

}  // namespace

std::string Lines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

std::vector<std::string> HeaderLines(int width, int height, const std::array<int, 4>& marks) {
  return {"",
          "Naziv: Proba",
          "Dimenzije:X=" + ThreePlaces(width) + " Y=" + ThreePlaces(height),
          "Opis: Tri puta tri",
          "Nastavak broj: 1",
          "H1: " + std::to_string(marks[0]),
          "V1: " + std::to_string(marks[1]),
          "H2: " + std::to_string(marks[2]),
          "V2: " + std::to_string(marks[3])};
}

std::string Qvm(const CrosswordText& text) {
  const Puzzle puzzle(text);
  std::vector<std::string> lines = HeaderLines(puzzle.width(), puzzle.height(), text.marks);
  lines[0] = text.media_table;
  lines[1] = "Naziv: " + text.title;
  lines[3] = "Opis: " + text.description;
  lines[4] = "Nastavak broj: " + std::to_string(text.number);
  for (int y = 1; y <= puzzle.height(); ++y) {
    for (int x = 1; x <= puzzle.width(); ++x) {
      lines.push_back(puzzle.Cell(x, y));
      lines.push_back(puzzle.Attributes(x, y));
    }
  }
  return Lines(lines);
}

std::string Qvm(const std::vector<std::string>& rows) { return Qvm(CrosswordText{.rows = rows}); }

}  // namespace kalvon::testing
