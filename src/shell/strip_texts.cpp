// SPDX-License-Identifier: MIT
#include "shell/strip_texts.h"

#include <algorithm>
#include <iterator>

#include "display/writing.h"
#include "document/crossword_state.h"
#include "files/run_time_error.h"
#include "letters/transliteration.h"

namespace kalvon {

namespace {

namespace error = files::error;

struct ErrorText {
  int error = 0;
  StripText text;
};

constexpr ErrorText error_texts[] = {
    {error::invalid_call, {"nije izabrana datoteka", "no file was chosen"}},
    {error::overflow, {"ukrštenica je prevelika", "the crossword is too large"}},
    {error::out_of_memory, {"nema dovoljno memorije", "there is not enough memory"}},
    {error::subscript_out_of_range, {"to nije cela ukrštenica", "it is no whole crossword"}},
    {error::out_of_string_space, {"jedan red je predugačak", "a line is too long"}},
    {error::file_not_found, {"datoteke nema", "the file is missing"}},
    {error::device_io, {"disk je javio grešku", "the disk reports an error"}},
    {error::disk_full, {"disk je pun", "the disk is full"}},
    {error::input_past_end, {"datoteka nije cela", "the file is not whole"}},
    {error::permission_denied,
     {"nema dozvole za upis, ili je koristi drugi program",
      "there is no right to write it, or another program uses it"}},
    {error::path_file_access, {"datoteka ne može da se otvori", "the file cannot be opened"}},
    {error::path_not_found, {"fascikle nema", "the folder is missing"}},
    {error::invalid_file_format,
     {"na njenom mestu je druga ukrštenica", "another crossword is in its place"}},
};
constexpr StripText other_error = {"greška broj %", "error number %"};

std::string Reason(int number) {
  const auto* const found = std::ranges::find(error_texts, number, &ErrorText::error);
  return found == std::end(error_texts) ? Shown(other_error, std::to_string(number))
                                        : Shown(found->text);
}

/// What was made, and what its undoing and redoing take for it.
struct StepText {
  StepKind kind = StepKind::word_entered;
  StripText made;
  StripText name;
};

constexpr StepText step_texts[] = {
    {StepKind::word_entered,
     {"Reč je upisana.", "The word is entered."},
     {"upisana reč", "entered word"}},
    {StepKind::letter_solved,
     {"Slovo je rešeno.", "The letter is solved."},
     {"rešeno slovo", "solved letter"}},
    {StepKind::word_solved,
     {"Reč je rešena.", "The word is solved."},
     {"rešena reč", "solved word"}},
    {StepKind::word_erased,
     {"Reč je obrisana; `Ctrl+Z` je vraća.", "The word is erased; Ctrl+Z brings it back."},
     {"obrisana reč", "erased word"}},
    {StepKind::puzzle_solved,
     {"Cela ukrštenica je rešena; `Ctrl+Z` vraća vaša slova.",
      "The whole puzzle is solved; Ctrl+Z brings your letters back."},
     {"rešena ukrštenica", "solved puzzle"}},
    {StepKind::puzzle_erased,
     {"Sva slova su obrisana; `Ctrl+Z` ih vraća.",
      "All letters are erased; Ctrl+Z brings them back."},
     {"obrisana ukrštenica", "erased puzzle"}},
    {StepKind::wrong_erased,
     {"Pogrešna slova su obrisana; `Ctrl+Z` ih vraća.",
      "The wrong letters are erased; Ctrl+Z brings them back."},
     {"obrisana pogrešna slova", "erased wrong letters"}},
    {StepKind::earlier_work,
     {"Prethodni rad je vraćen.", "The earlier work is back."},
     {"prethodni rad", "earlier work"}},
    {StepKind::word_typed,
     {"Slovo je upisano; `Ctrl+Z` vraća reč kakva je bila.",
      "The letter is entered; Ctrl+Z brings the word back as it was."},
     {"otkucana reč", "typed word"}},
};

const StepText& TextOf(StepKind kind) {
  return *std::ranges::find(step_texts, kind, &StepText::kind);
}

struct RefusalText {
  Refusal why = Refusal::no_letter;
  StripText text;
};

constexpr RefusalText refusal_texts[] = {
    {Refusal::other_keyboard,
     {"Slovo nije sa tastature ovog pisma; uzima ga „Slova svih tastatura“ u meniju (`F10`).",
      "No letter of an English keyboard; “Letters of all keyboards” in the menu (F10) takes it."}},
    {Refusal::capital,
     {"Uz `YU ASCII` se slova kucaju bez tastera `Shift`; uz `Unikod` (`Ctrl+T`) je svejedno.",
      "Letters are typed without Shift."}},
    {Refusal::other_layout,
     {"To je slovo samo uz kodni raspored `YU ASCII`, koji se bira u opcijama (`Ctrl+T`).", ""}},
    {Refusal::no_letter, {"To nije slovo azbuke.", "That is no letter."}},
    {Refusal::past_the_word,
     {"U ovoj kućici nema slova reči.", "This box holds no letter of the word."}},
};

constexpr StripText undone = {"Poništeno: %.", "Undone: %."};
constexpr StripText typed_letter = {"otkucano slovo", "typed letter"};
constexpr StripText redone = {"Ponovljeno: %.", "Redone: %."};
constexpr StripText loaded = {"Učitana je ukrštenica %.", "% is loaded."};
constexpr StripText restored = {
    "%: vraćena su slova koja nisu snimljena; `Ctrl+Z` ih uklanja korak po korak.",
    "%: letters that were not saved are back; Ctrl+Z takes them away, step by step."};
constexpr StripText waiting = {
    "%: čekaju slova koja nisu snimljena; `Ctrl+Y` ih vraća korak po korak.",
    "%: letters that were not saved wait; Ctrl+Y brings them back, step by step."};
constexpr StripText no_journal = {"Bez dnevnika: %. ", "No journal: %. "};
constexpr StripText not_loaded = {"Nije učitano: %.", "Not loaded: %."};
constexpr StripText open_stopped = {"Otvaranje je prekinuto.", "Opening was stopped."};
constexpr StripText other_language = {"Ukrštenica je na engleskom; otvara je program `kalvon-en`.",
                                      "The crossword is in Serbian; kalvon opens it."};
constexpr StripText no_other_program = {
    "Ukrštenica je na engleskom, a programa `kalvon-en` ovde nema.",
    "The crossword is in Serbian, and its program, kalvon, is not here."};
constexpr StripText remarked = {" Primedbe (vidi meni): %.", " Remarks (see the menu): %."};
constexpr StripText saved = {"Snimljeno: %.", "Saved: %."};
constexpr StripText not_saved = {"Nije snimljeno: %.", "Not saved: %."};
constexpr StripText not_printed = {"Deo programa koji štampa nije instaliran.",
                                   "The part of the program that prints is not installed."};
constexpr StripText typed = {"`Enter` upisuje slova u ukrštenicu.",
                             "Enter writes the letters into the puzzle."};
constexpr StripText counted = {"Pogrešnih slova: %.", "Wrong letters: %."};
constexpr StripText no_solution = {
    "Ukrštenica nema rešenje: nema sa čim da se uporedi.",
    "The puzzle has no solution: there is nothing to check against."};
constexpr StripText unknown_cells = {"Polja bez rešenja, u kojima nema sa čim da se uporedi: %.",
                                     "Cells without a solution to check against: %."};
constexpr StripText no_empty_cell = {"Nema više praznih polja.", "No cell is empty any more."};
constexpr StripText nothing_selected = {
    "U ovom polju je samo jedna reč; vraća je klik na njeno pitanje.",
    "Only one word lies in this cell; a click on its clue brings it back."};
constexpr StripText no_crossing_word = {"U ovom polju nema druge reči.",
                                        "No other word lies in this cell."};
constexpr StripText no_medium = {"Ovo pitanje nema multimediju.", "This clue has no multimedia."};
constexpr StripText solved = {"Bravo! Sva slova su na svom mestu.",
                              "Well done! Every letter is in its place."};
constexpr StripText about_program = {
    "`Vostrand KALVON Multimedia` %, slobodan program (licenca `MIT`).",
    "Vostrand KALVON Multimedia %, free software (MIT licence)."};
constexpr StripText nothing_kept = {"Podešavanja se neće sačuvati: %.",
                                    "Settings will not be kept: %."};
constexpr StripText nothing_loaded = {"`Ctrl+O` učitava ukrštenicu.", "Ctrl+O loads a crossword."};

/// The files that were written, or those that were not, each with its reason.
std::string Files(const Vest& vest, bool failed) {
  std::string files;
  for (const FileNews& file : vest.files) {
    if ((file.error != 0) != failed) continue;
    if (!files.empty()) files += ", ";
    files += file.name;
    if (failed) files += (file.name.empty() ? "" : " – ") + Reason(file.error);
  }
  return files;
}

std::string SaveText(const Vest& vest) {
  const std::string written = Files(vest, false);
  const std::string failed = Files(vest, true);
  std::string text;
  if (!failed.empty()) text = Shown(not_saved, failed);
  if (!failed.empty() && !written.empty()) text += ' ';
  if (!written.empty()) text += Shown(saved, written);
  return text;
}

/// Empty for a crossword whose solution is known everywhere.
std::string UnknownText() {
  const LetterCounts& slova = glavni.slova;
  if (slova.unknown == 0) return "";
  return slova.unknown == slova.cells ? Shown(no_solution)
                                      : Shown(unknown_cells, std::to_string(slova.unknown));
}

std::string CountedText(int wrong) {
  const LetterCounts& slova = glavni.slova;
  if (slova.unknown == 0) return Shown(counted, std::to_string(wrong));
  if (slova.unknown == slova.cells) return UnknownText();
  return Shown(counted, std::to_string(wrong)) + ' ' + UnknownText();
}

/// What happened, without the journal.
std::string TextOf(const Vest& vest) {
  const StepText& step = TextOf(vest.step);
  switch (vest.news) {
    case News::none:
      return glavni.pre_ucitavanja == 1 ? Shown(nothing_loaded) : "";
    case News::loaded:
      return Shown(loaded, Files(vest, false));
    case News::restored:
      return Shown(restored, Files(vest, false));
    case News::waiting:
      return Shown(waiting, Files(vest, false));
    case News::load_failed:
      return Shown(not_loaded, Files(vest, true));
    case News::open_failed:
      return Shown(not_loaded, vest.reason);
    case News::open_stopped:
      return Shown(open_stopped);
    case News::other_language:
      return Shown(other_language);
    case News::no_other_program:
      return Shown(no_other_program);
    case News::saved:
    case News::save_failed:
      return SaveText(vest);
    case News::not_written:
      return Shown(not_saved, vest.reason);
    case News::not_printed:
      return Shown(not_printed);
    case News::typed:
      return Shown(typed);
    case News::untyped:
      return Shown(undone, Shown(typed_letter));
    case News::letter_refused:
      return Shown(std::ranges::find(refusal_texts, vest.refusal, &RefusalText::why)->text);
    case News::made:
      return glavni.slova.Solved() && vest.step != StepKind::puzzle_solved ? Shown(solved)
                                                                           : Shown(step.made);
    case News::undone:
      return Shown(undone, Shown(step.name));
    case News::redone:
      return Shown(redone, Shown(step.name));
    case News::counted:
      return CountedText(vest.count);
    case News::no_solution:
      return UnknownText();
    case News::no_empty_cell:
      return Shown(no_empty_cell);
    case News::nothing_selected:
      return Shown(nothing_selected);
    case News::no_crossing_word:
      return Shown(no_crossing_word);
    case News::no_medium:
      return Shown(no_medium);
    case News::nothing_kept:
      return Shown(nothing_kept, Files(vest, true));
    case News::about:
      return Shown(about_program, KALVON_VERSION);
  }
  return "";
}

}  // namespace

std::string Shown(const StripText& text, std::string_view about) {
  const Writing writing = ChosenWriting();
  std::string shown =
      writing.english ? std::string(text.english) : InScript(text.serbian, writing.latin);
  if (const std::size_t mark = shown.find('%'); mark != std::string::npos)
    shown.replace(mark, 1, about);
  return shown;
}

std::string NewsText() {
  const Vest& vest = glavni.vest;
  const std::string journal =
      vest.journal_error == 0 ? "" : Shown(no_journal, Reason(vest.journal_error));
  const std::string remarks =
      vest.remarks == 0 ? "" : Shown(remarked, std::to_string(vest.remarks));
  return journal + TextOf(vest) + remarks;
}

}  // namespace kalvon
