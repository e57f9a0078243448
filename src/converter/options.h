// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/qvm.h"
#include "exchange/storing.h"

namespace kalvon::converter {

/// What the command line asks for.
struct Options {
  exchange::Storing storing;
  bool latin = true;  ///< The script of Serbian texts in other formats and pictures.
  std::optional<exchange::Division>
      division;                    ///< Of a crossword of this program; none: as its source asks.
  std::string media;               ///< Folder of the media, empty for none.
  bool force = false;              ///< Whether existing files may be replaced.
  bool check = false;              ///< Whether the files are looked at alone.
  int size = 1200;                 ///< Width of a PNG picture. Pixels.
  std::string to;                  ///< Ending of the format to write, empty for that of the target.
  std::string into;                ///< Folder of the targets, empty if the target is named.
  std::vector<std::string> files;  ///< Sources, and behind them the target if it is named.
};

/// The standard input or output in the place of a file.
inline constexpr const char* standard_stream = "-";

/// The options of the running program's command line; none if they make no sense, which has then
/// been told on the standard error. Answers --help and --version itself and ends the program.
std::optional<Options> OptionsOf(const std::vector<std::string>& arguments);

}  // namespace kalvon::converter
