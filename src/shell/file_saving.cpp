// SPDX-License-Identifier: MIT
#include "shell/file_saving.h"

#include <filesystem>
#include <memory>
#include <utility>

#include "crossword/header.h"
#include "crossword/installments.h"
#include "display/writing.h"
#include "document/crossword_state.h"
#include "exchange/crossword_file.h"
#include "exchange/format.h"
#include "exchange/media.h"
#include "exchange/qvm.h"
#include "files/folder_entries.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"
#include "shell/remarks.h"
#include "shell/strip_texts.h"
#include "shell/toolkit/windows/desktop_dialogs.h"
#include "shell/toolkit/windows/paper.h"

namespace kalvon {

namespace {

namespace fs = std::filesystem;
using exchange::ConversionError;
using exchange::Matter;

/// The path of the first file of the crossword, one of the logic.
std::string FirstFile() {
  for (int i = 1; i <= glavni.nast_zadnji; ++i)
    if (!glavni.nast_staza(i).empty()) return glavni.nast_staza(i);
  return glavni.ukr_staza;
}

/// The crossword on the screen, with what its files say of it.
exchange::HeadedCrossword OnScreen() {
  exchange::HeadedCrossword headed{.crossword = static_cast<const Crossword&>(glavni),
                                   .english = glavni.jezik == 1};
  if (glavni.nast_zadnji > 1) headed.division = {glavni.nast_zadnji, glavni.nast_smer};
  files::pass_over([&] {
    files::TextReader file(FirstFile(), files::as_the_first_line);
    headed.head = exchange::HeadOf(ReadHeader(file), headed.english);
  });
  return headed;
}

printing::Sheet SheetOf(exchange::HeadedCrossword headed, printing::Contents contents) {
  return {.crossword = std::move(headed.crossword),
          .title = headed.head.title,
          .author = headed.head.author,
          .description = headed.head.description,
          .writing = ChosenWriting(),
          .contents = contents};
}

/// Files of this program: the one of the path, or all installments beside it.
void WriteQvm(exchange::HeadedCrossword headed, const fs::path& path, exchange::Remarks& remarks) {
  const std::string base = path.stem().string();
  if (!exchange::IsTakenName(base)) throw ConversionError(Matter::refused_name, base);
  exchange::ReadMedia(headed, remarks);
  const exchange::Division division = headed.division;
  const std::vector<exchange::QvmFile> files = exchange::QvmFiles(headed, division, remarks);
  int installment = 0;
  for (const exchange::QvmFile& file : files) {
    const fs::path target = path.parent_path() / exchange::QvmName(base, division, ++installment);
    if (target != path && files::Exists(target.string()))
      throw ConversionError(Matter::exists, target.string());
    exchange::WriteBytes(target.string(), file.crossword);
    if (!file.pack.empty()) exchange::WriteBytes(WithExtension(target.string(), "qvd"), file.pack);
  }
}

void Write(const std::string& path, exchange::Remarks& remarks) {
  const std::string ending = exchange::EndingOf(path);
  if (ending == "qvm") return WriteQvm(OnScreen(), path, remarks);
  if (ending == "pdf" || ending == "svg") {
    const printing::Printout printout(SheetOf(OnScreen(), printing::Contents::users_letters));
    return exchange::WriteBytes(path, ending == "pdf" ? printout.Pdf() : printout.Svg());
  }
  const exchange::Format* const format = exchange::FormatOfEnding(ending);
  if (format == nullptr)
    throw ConversionError(Matter::unknown_target, "qvm, ipuz, puz, jpz, xd, pdf, svg");
  const exchange::Puzzle shown = exchange::Shown(OnScreen(), ChosenWriting().latin);
  exchange::WriteBytes(path, format->write(shown, remarks));
}

std::string NameWithoutEnding(const std::string& path) {
  return fs::path(files::HostPath(path)).replace_extension().string();
}

}  // namespace

void sacuvaj_kao() {
  constexpr StripText title = {"Čuvanje ukrštenice u drugom obliku", "Save crossword as"};
  const std::string path = toolkit::FileToWrite({Shown(title),
                                                 NameWithoutEnding(FirstFile()),
                                                 {{"ipuz", {"ipuz"}},
                                                  {"puz", {"puz"}},
                                                  {"jpz", {"jpz"}},
                                                  {"xd", {"xd"}},
                                                  {"KALVON (qvm)", {"qvm"}},
                                                  {"PDF", {"pdf"}},
                                                  {"SVG", {"svg"}}}});
  if (!path.empty()) sacuvaj_u(path);
}

void sacuvaj_u(const std::string& path) {
  const std::string name = fs::path(path).filename().string();
  exchange::Remarks remarks;
  try {
    Write(path, remarks);
    glavni.vest = {.news = News::saved,
                   .files = {{name, 0}},
                   .remarks = static_cast<int>(remarks.List().size())};
  } catch (const ConversionError& error) {
    glavni.vest = {.news = News::not_written, .reason = name + " – " + RemarkText(error.Why())};
  }
  KeepRemarks(remarks);
}

void stampaj(printing::Contents contents) {
  const exchange::HeadedCrossword headed = OnScreen();
  const printing::Sheet sheet = SheetOf(headed, contents);
  const int failure = files::pass_over([&] {
    toolkit::Print(headed.head.title, [&](double width, double height) {
      const auto printout = std::make_shared<printing::Printout>(
          sheet, printing::Paper{width, height, printing::a4.margin});
      return toolkit::PrintedPages{printout->Pages(), [printout](int page, QPainter& painter) {
                                     printout->Paint(page, painter);
                                   }};
    });
  });
  if (failure != 0) glavni.vest = {.news = News::not_printed};
}

}  // namespace kalvon
