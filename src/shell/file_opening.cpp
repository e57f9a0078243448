// SPDX-License-Identifier: MIT
#include "shell/file_opening.h"

#include <filesystem>
#include <memory>

#include "crossword/header.h"
#include "crossword/identity.h"
#include "crossword/installments.h"
#include "document/crossword_state.h"
#include "exchange/crossword_file.h"
#include "exchange/media.h"
#include "exchange/qvm.h"
#include "files/folder_entries.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"
#include "shell/help.h"
#include "shell/load_dialog.h"
#include "shell/recent_files.h"
#include "shell/remarks.h"
#include "shell/strip_texts.h"
#include "shell/toolkit/desktop/program_folders.h"
#include "shell/toolkit/windows/application.h"
#include "shell/toolkit/windows/desktop_dialogs.h"

namespace kalvon {

namespace {

namespace fs = std::filesystem;

/// More copies of one name than anybody makes.
constexpr int most_copies = 999;

std::string NameOf(const std::string& path) { return fs::path(path).filename().string(); }

/// What a file holds, and what was remarked.
struct Reading {
  exchange::HeadedCrossword headed = {};
  exchange::Remarks remarks = {};
};

bool IsOfOtherLanguage(bool english) { return english != (glavni.jezik == 1); }

/// A crossword of this program says so by a word of its head. One that cannot be read is left to
/// the load.
bool IsEnglishQvm(const std::string& path) {
  Header header;
  files::pass_over([&] {
    files::TextReader file(files::LogicPath(path), files::as_the_first_line);
    header = ReadHeader(file);
  });
  return header[2].starts_with("Dimensions");
}

void OpenInOtherProgram(const std::string& path) {
  const char* const program = glavni.jezik == 0 ? "kalvon-en" : "kalvon";
  const int failure = files::pass_over([&] { toolkit::StartBeside(program, path); });
  glavni.vest = {.news = failure == 0 ? News::other_language : News::no_other_program};
}

/// Null if the user does not wait for it.
std::shared_ptr<Reading> Read(const std::string& path) {
  constexpr StripText reading = {"Čitanje ukrštenice…", "Reading the crossword…"};
  constexpr StripText stop = {"Prekid", "Stop"};
  auto read = std::make_shared<Reading>();
  const bool done = toolkit::WorkAside({Shown(reading), Shown(stop)}, [read, path] {
    const exchange::Storing storing = {.lenient = true};
    read->headed = exchange::ReadCrosswordFile(path, storing, read->remarks);
  });
  return done ? read : nullptr;
}

std::string FolderForCrosswords() {
  const std::string folder = toolkit::CrosswordFolder();
  return files::HostPath(folder.empty() ? toolkit::App::Path() : folder);
}

/// The path of this program's file for a crossword: one that has it already, or a new one.
std::string Stored(Reading& read, const std::string& source) {
  const fs::path folder = FolderForCrosswords();
  const exchange::Division whole;
  const std::vector<exchange::QvmFile> files = exchange::QvmFiles(read.headed, whole, read.remarks);
  const std::uint64_t content = ContentOf(read.headed.crossword);
  for (int copy = 1; copy <= most_copies; ++copy) {
    const std::string base = exchange::MadeName(fs::path(source).stem().string(), copy);
    std::string path = (folder / exchange::QvmName(base, whole, 1)).string();
    if (LiesAt(path, content)) return path;
    if (files::Exists(path)) continue;
    exchange::WriteBytes(path, files.front().crossword);
    return path;
  }
  throw exchange::ConversionError(exchange::Matter::exists, source);
}

void Load(const std::string& path) {
  ucitaj_iz(files::LogicPath(path));
  const bool loaded = glavni.vest.news != News::load_failed;
  if (loaded) dodaj_nedavnu(path);
}

/// Opens a crossword of another program.
void Convert(const std::string& path) {
  const std::shared_ptr<Reading> read = Read(path);
  if (!read) {
    glavni.vest = {.news = News::open_stopped};
    return;
  }
  if (IsOfOtherLanguage(read->headed.english)) return OpenInOtherProgram(path);
  // In one piece, and without the media that only an author has.
  for (const exchange::MediaClue& clue : exchange::MediaClues(read->headed.crossword)) {
    exchange::GiveMedium(read->headed.crossword, clue, "");
    read->remarks.Add(
        {.matter = exchange::Matter::medium_missing, .cell = clue.cell, .detail = clue.medium});
  }
  const std::string stored = Stored(*read, path);
  KeepRemarks(read->remarks);
  Load(stored);
  glavni.vest.remarks = static_cast<int>(read->remarks.List().size());
}

}  // namespace

void otvori() {
  constexpr StripText title = {"Otvaranje ukrštenice", "Open crossword"};
  constexpr StripText kinds = {"Ukrštenice", "Crosswords"};
  constexpr StripText all = {"Sve datoteke", "All files"};
  const std::string path = toolkit::FileToOpen(
      {Shown(title),
       FolderForCrosswords(),
       {{Shown(kinds), {"qvm", "ipuz", "puz", "jpz", "xd", "xml"}}, {Shown(all), {"*"}}}});
  if (!path.empty()) otvori_fajl(path);
}

void otvori_fajl(const std::string& path) {
  if (glavni.pomoc_otvorena == 1) zatvori_pomoc();
  try {
    if (!exchange::IsQvm(path))
      Convert(path);
    else if (IsOfOtherLanguage(IsEnglishQvm(path)))
      OpenInOtherProgram(path);
    else
      Load(path);
  } catch (const exchange::ConversionError& error) {
    glavni.vest = {.news = News::open_failed,
                   .reason = NameOf(path) + " – " + RemarkText(error.Why())};
  }
}

}  // namespace kalvon
