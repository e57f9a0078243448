// SPDX-License-Identifier: MIT
#include "converter/pictures.h"

#include "files/run_time_error.h"
#include "printing/printing.h"

namespace kalvon::converter {

std::string PictureOf(const exchange::HeadedCrossword& headed, std::string_view ending,
                      const Options& options) {
  const printing::Printout printout({.crossword = headed.crossword,
                                     .title = headed.head.title,
                                     .author = headed.head.author,
                                     .description = headed.head.description,
                                     .writing = {.english = headed.english, .latin = options.latin},
                                     .contents = printing::Contents::users_letters});
  if (ending == "pdf") return printout.Pdf();
  if (ending == "svg") return printout.Svg();
  try {
    return printout.Png(options.size);
  } catch (const files::RuntimeError&) {
    throw exchange::ConversionError(exchange::Matter::too_large_to_draw);
  }
}

}  // namespace kalvon::converter
