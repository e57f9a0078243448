// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "crossword/header.h"
#include "exchange/storing.h"

namespace kalvon::exchange {

/// Reads the crossword of a file, its installments joined, as ReadCrossword, with its errors. The
/// path is one of the logic. A language that is not told is found by the words of the head.
HeadedCrossword ReadQvm(const std::string& path, Language language);

/// What the nine lines of a head say.
Head HeadOf(const Header& header, bool english);

/// The bytes of one installment's file, and of the media pack beside it, empty for none.
struct QvmFile {
  std::string crossword;
  std::string pack;
};

/// The files, one for each installment, with the media of its clues. ConversionError for a
/// crossword that does not divide into so many of the same size.
std::vector<QvmFile> QvmFiles(const HeadedCrossword& headed, const Division& division,
                              Remarks& remarks);

/// The name of an installment's file, or of the only one, for a name without an ending.
/// ConversionError for installments whose base has not five characters.
std::string QvmName(const std::string& base, const Division& division, int installment);

/// Whether the program opens a crossword of this name, which stands without its ending: it has no
/// dot, and no three digits at its end that would number an installment.
bool IsTakenName(std::string_view base);

/// A name for a crossword file that we make: of the text's letters and digits in ASCII, at most 16
/// characters with no three digits at the end, and never empty. With `number` above 1 behind a
/// hyphen.
std::string MadeName(std::string_view text, int number = 1);

}  // namespace kalvon::exchange
