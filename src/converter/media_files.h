// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "exchange/storing.h"

namespace kalvon::converter {

/// Takes the media that clues name from a folder: pictures of any kind become bitmaps no larger
/// than the pane of the program, texts (UTF-8) get the code of the crossword, sounds (wav), music
/// (mid) and films (avi) are taken as they are. ConversionError for a file of no such kind; what
/// is missing is told, and its clue keeps the text alone.
void TakeMedia(exchange::HeadedCrossword& headed, const std::string& folder,
               exchange::Remarks& remarks);

/// Writes the media of a crossword into a folder, which is made if need be. ConversionError.
void WriteMedia(const exchange::HeadedCrossword& headed, const std::string& folder, bool force);

}  // namespace kalvon::converter
