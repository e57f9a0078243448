// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "crossword/crossword.h"
#include "exchange/puzzle.h"
#include "exchange/remark.h"

namespace kalvon::exchange {

/// What the head of a crossword file says to a reader. UTF-8, Serbian in Latin letters.
struct Head {
  std::string title = {};
  std::string author = {};
  std::string copyright = {};
  std::string description = {};

  bool operator==(const Head&) const = default;
};

/// How a crossword is divided into installments.
struct Division {
  int installments = 1;
  int join = join::none;  ///< One of `join`; none for one installment.
};

/// A crossword with what this program's format keeps beside the value.
struct HeadedCrossword {
  Crossword crossword = {};  ///< In one piece, whatever installments it came from.
  Head head = {};
  std::map<std::string, std::string> media = {};  ///< Bytes of the files that its clues name.
  bool english = false;                           ///< Its language, English or Serbian.
  Division division = {};                         ///< That its source asks for.
};

enum class Language {
  found,  ///< As the file says, else by its letters: Č, Ć, Ž, Š, Đ or Cyrillic mean Serbian.
  serbian,
  english,
};

struct Storing {
  Language language = Language::found;
  /// Whether accents are taken off, a rebus becomes its first letter and a sign a "?", each with a
  /// remark, instead of an error.
  bool lenient = false;
};

/// The crossword that this program solves, numbered, of a puzzle of another format. ConversionError
/// if it cannot hold it.
HeadedCrossword Store(const Puzzle& puzzle, const Storing& storing, Remarks& remarks);

/// The puzzle for another format. Serbian is written in Latin or Cyrillic letters.
Puzzle Shown(const HeadedCrossword& headed, bool latin);

}  // namespace kalvon::exchange
