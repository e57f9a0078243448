// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "crossword/step.h"
#include "letters/typed_character.h"

namespace kalvon {

/// What happened last, as far as the user is told of it.
enum class News {
  none,
  loaded,
  restored,  ///< Loaded, with letters that a killed program had not saved.
  waiting,   ///< Loaded, and steps wait that were not saved.
  load_failed,
  open_failed,       ///< A file that was to be opened; the reason says why.
  open_stopped,      ///< By the user, who found it too long.
  other_language,    ///< The program of the other language opens it.
  no_other_program,  ///< There is none.
  saved,
  save_failed,
  not_written,  ///< In another format; the reason says why.
  not_printed,  ///< The part of the program that prints is not installed.
  typed,        ///< Letters are in the boxes that Enter will write.
  untyped,      ///< The last of them is taken back.
  letter_refused,
  made,  ///< A step.
  undone,
  redone,
  counted,      ///< Wrong letters.
  no_solution,  ///< Nothing could be done with cells whose solution is not known.
  no_empty_cell,
  nothing_selected,  ///< By a click on a cell with one word, whose direction was not at hand.
  no_crossing_word,
  no_medium,     ///< The clue has none that could be opened.
  nothing_kept,  ///< The program has no folder for what it keeps; a file without a name says why.
  about,         ///< The program.
};

/// A file that was written or read, and how that went.
struct FileNews {
  std::string name;
  int error = 0;  ///< 0 if it went well.
};

/// The news and what it is about.
struct Vest {
  News news = News::none;
  StepKind step = StepKind::word_entered;
  std::vector<FileNews> files = {};
  int count = 0;
  Refusal refusal = Refusal::no_letter;
  int remarks = 0;          ///< That can be read in the menu.
  std::string reason = {};  ///< In the language and script of the program.
  int journal_error = 0;    ///< 0, or why the journal cannot be kept from now on.
};

}  // namespace kalvon
