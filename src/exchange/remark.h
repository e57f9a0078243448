// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <string>
#include <vector>

#include "crossword/crossword.h"

namespace kalvon::exchange {

/// What a conversion has to say. Each has its sentence in remark_texts.cpp, in both languages.
enum class Matter {
  // Errors: the conversion ends.
  unknown_format,  ///< The content is of no format that is known.
  damaged,         ///< The file breaks the rules of its format; the detail says where or how.
  ends_early,      ///< The file ends before all of its parts have come.
  damaged_line,    ///< A line breaks the rules of the format; the detail is its number and text.
  no_section,      ///< A part of the file is missing; the detail names it.
  too_long,        ///< The file, or something in it, is larger than any crossword.
  scrambled,       ///< Its solution is locked.
  other_kind,      ///< It is a puzzle of another kind; the detail names it.
  bars,            ///< Its words are divided by bars.
  bent_word,       ///< A word leaves its straight line.
  no_cells,
  too_many_cells,
  too_many_numbers,
  no_letter,           ///< A cell holds what is no letter of the alphabet; the detail is its text.
  many_letters,        ///< A cell holds several letters.
  uneven_parts,        ///< The grid does not divide into that many installments.
  installment_name,    ///< Installments need a name of five characters.
  no_words,            ///< No word, and so nothing to solve.
  too_large_to_write,  ///< The format has no room for the grid; the detail is its longest side.
  // Remarks.
  wrong_checksum,
  accent_taken_off,  ///< From the letter of a cell.
  rebus_shortened,   ///< To its first letter.
  no_letter_hidden,  ///< A digit or a sign in a cell became "?".
  no_solution,       ///< Nothing can be checked in cells without a solution.
  circles_dropped,
  shades_dropped,
  pictures_dropped,
  numbers_differ,     ///< The detail is the number in the file and ours.
  clue_without_word,  ///< The detail is the clue.
  word_without_clue,
  answer_differs,     ///< From the letters in the grid; the detail is the clue's number and answer.
  text_approximated,  ///< A character of a text was replaced by a similar one.
  text_lost,          ///< By "?".
  dollar_replaced,
  slash_moved,
  medium_dropped,      ///< The format has no place for media; the clue is kept as a text.
  letters_simplified,  ///< The format's grid has plain letters alone.
  entries_dropped,     ///< The format has no place for the letters of the user.
  holes_filled,        ///< The format knows no holes; they became blocks.
  blanks_dropped,      ///< The format has no place for the blanks of answers.
  texts_dropped,       ///< The format has no place for something; the detail names it.
};

/// A sentence about a conversion, and the cell that it is about.
struct Remark {
  Matter matter{};
  GridCell cell = {};  ///< (0, 0) if it is about no single cell.
  std::string detail;  ///< UTF-8.
  int times = 1;

  bool operator==(const Remark&) const = default;
};

/// The remarks of one conversion, in their order.
class Remarks {
 public:
  void Add(Remark remark) { remarks_.push_back(std::move(remark)); }
  /// A remark that counts how often it was made instead of standing there so often.
  void Count(Matter matter, const std::string& detail = "");

  [[nodiscard]] const std::vector<Remark>& List() const { return remarks_; }

 private:
  std::vector<Remark> remarks_;
};

/// Ends a conversion.
class ConversionError : public std::exception {
 public:
  explicit ConversionError(Remark remark) : remark_(std::move(remark)) {}
  explicit ConversionError(Matter matter, std::string detail = "")
      : remark_{.matter = matter, .detail = std::move(detail)} {}
  [[nodiscard]] const Remark& Why() const { return remark_; }
  [[nodiscard]] const char* what() const noexcept override { return "conversion"; }

 private:
  Remark remark_;
};

/// The sentence of a remark, without its place and without a stop at its end. UTF-8, Serbian in
/// Latin letters.
std::string TextOf(const Remark& remark, bool english);

}  // namespace kalvon::exchange
