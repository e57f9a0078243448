// SPDX-License-Identifier: MIT
#include "support/crossword_text.h"

#include <QString>

namespace kalvon::testing {
namespace {

/// The character in a column and row, both from 1; a blank beyond the rows.
char At(const std::vector<std::string>& rows, int x, int y) {
  const auto row = static_cast<std::size_t>(y - 1);
  const auto column = static_cast<std::size_t>(x - 1);
  return row < rows.size() && column < rows[row].size() ? rows[row][column] : ' ';
}

bool HoldsLetter(const std::vector<std::string>& rows, int x, int y) {
  return std::string(" #.").find(At(rows, x, y)) == std::string::npos;
}

}  // namespace

std::string Lines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

std::vector<std::string> HeaderLines(int width, int height, const std::array<int, 4>& marks) {
  const QString size = QString::asprintf("Dimenzije:X=%3d Y=%3d", width, height);
  std::vector<std::string> lines = {"", "Naziv: Proba", size.toStdString(), "Opis: Tri puta tri",
                                    "Nastavak broj: 1"};
  for (const int mark : marks) lines.push_back("Oznaka: " + std::to_string(mark));
  return lines;
}

std::string Qvm(const CrosswordText& text) {
  const auto& rows = text.rows;
  const int height = static_cast<int>(rows.size());
  const int width = static_cast<int>(rows.at(0).size());
  std::vector<std::string> lines = HeaderLines(width, height, text.marks);
  lines[0] = text.media_table;
  int starts = 0;
  const auto clue = [&](char direction) {
    const auto name = direction + std::to_string(starts);
    return text.clues.contains(name) ? text.clues.at(name) : name;
  };
  for (int y = 1; y <= height; ++y) {
    for (int x = 1; x <= width; ++x) {
      const auto starts_word = [&](int dx, int dy) {
        return HoldsLetter(rows, x, y) && !HoldsLetter(rows, x - dx, y - dy) &&
               HoldsLetter(rows, x + dx, y + dy);
      };
      const bool across = starts_word(1, 0);
      const bool down = starts_word(0, 1);
      std::string cell = At(rows, x, y) == '#' ? "$1$" : "";
      if (HoldsLetter(rows, x, y)) {
        cell = At(rows, x, y);
        if (At(text.letters, x, y) != ' ') cell += At(text.letters, x, y);
        cell += across ? "$0$1$" : "$0$0$";
        cell += down ? "1$" : "0$";
        cell += "00";
      }
      std::string attributes;
      if (across || down) {
        ++starts;
        attributes = across ? down ? "011$$$$" : "010$$$$" : "001$$$$";
        attributes += (across ? clue('A') : "") + '$' + (down ? clue('D') : "") + '$';
      }
      lines.insert(lines.end(), {cell, attributes});
    }
  }
  return Lines(lines);
}

std::string Qvm(const std::vector<std::string>& rows) { return Qvm(CrosswordText{.rows = rows}); }

}  // namespace kalvon::testing
