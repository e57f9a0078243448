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
  not_whole,       ///< A file of this program that is no whole crossword.
  unreadable,      ///< The detail is the host's reason.
  unwritable,      ///< The same.
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
  no_letter,         ///< A cell holds what is no letter of the alphabet; the detail is its text.
  many_letters,      ///< A cell holds several letters.
  uneven_parts,      ///< The grid does not divide into that many installments.
  installment_name,  ///< Installments need a name of five characters.
  refused_name,      ///< The program does not open a crossword of this name.
  exists,            ///< A file that is not to be replaced.
  unknown_target,    ///< The detail lists what can be written.
  one_file_wanted,   ///< Installments cannot go to the standard output.
  unknown_medium,    ///< A file that no clue can show.
  no_words,          ///< No word, and so nothing to solve.
  cells_missing,     ///< The file has fewer cells than its size says; the detail is the file.
  cell_form,         ///< A cell string that breaks its form.
  start_on_block,
  clue_not_closed,
  medium_refused,     ///< The program writes no file of this name or size, or the table lacks it.
  medium_cut,         ///< The pack ends before its end.
  medium_unplayable,  ///< It is not what its name says.
  too_large_to_draw,
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
  medium_missing,      ///< The detail is its name.
  medium_dropped,      ///< The format has no place for media; the clue is kept as a text.
  letters_simplified,  ///< The format's grid has plain letters alone.
  word_without_start,  ///< Two letters and more, where none begins.
  short_word,          ///< One of a single letter.
  marks_differ,        ///< Fields of a cell and starts of words.
  unused_medium,       ///< The detail is its name.
  entry_lost,          ///< A letter that the user wrote is none of the alphabet.
  entries_dropped,     ///< The format has no place for the letters of the user.
  holes_filled,        ///< The format knows no holes; they became blocks.
  blanks_dropped,      ///< The format has no place for the blanks of answers.
  texts_dropped,       ///< The format has no place for something; the detail names it.
};

/// Whether it ends a conversion, or makes a crossword unfit.
constexpr bool IsError(Matter matter) { return matter < Matter::wrong_checksum; }

/// A sentence about a conversion, and the cell that it is about.
struct Remark {
  Matter matter{};
  GridCell cell = {};       ///< (0, 0) if it is about no single cell.
  std::string detail = {};  ///< UTF-8.
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
