// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iterator>
#include <string_view>

#include "exchange/remark.h"

namespace kalvon::exchange {
namespace {

/// A sentence in both languages; "%" stands for the detail.
struct Sentence {
  Matter matter{};
  std::string_view serbian;
  std::string_view english;
};

constexpr Sentence sentences[] = {
    {Matter::not_whole, "To nije cela ukrštenica", "It is no whole crossword"},
    {Matter::unreadable, "Datoteka se ne može pročitati: %", "The file cannot be read: %"},
    {Matter::unwritable, "Datoteka se ne može upisati: %", "The file cannot be written: %"},
    {Matter::unknown_format, "Sadržaj nije ukrštenica nijednog poznatog formata",
     "The content is no crossword of a known format"},
    {Matter::damaged, "Datoteka je oštećena: %", "The file is damaged: %"},
    {Matter::ends_early, "Datoteka se završava pre vremena", "The file ends too early"},
    {Matter::damaged_line, "Red nije po pravilima formata: %",
     "A line breaks the rules of the format: %"},
    {Matter::no_section, "Nedostaje deo datoteke: %", "A part of the file is missing: %"},
    {Matter::too_long, "Datoteka je veća od svake ukrštenice",
     "The file is larger than any crossword"},
    {Matter::scrambled, "Rešenje je zaključano", "The solution is locked"},
    {Matter::other_kind, "To nije obična ukrštenica: %", "It is no plain crossword: %"},
    {Matter::bars, "Reči su razdvojene debelim crtama, što ovaj program ne ume da prikaže",
     "The words are divided by bars, which this program cannot show"},
    {Matter::bent_word, "Reč % ne leži u pravoj liniji", "The word % leaves its straight line"},
    {Matter::no_cells, "Ukrštenica nema polja", "The crossword has no cells"},
    {Matter::too_many_cells, "Ukrštenica ima više od 16383 polja",
     "The crossword has more than 16383 cells"},
    {Matter::too_many_numbers, "Više od polovine polja ima broj, što ovaj program ne prima",
     "More than half of the cells have a number, which this program does not take"},
    {Matter::no_letter, "„%“ nije slovo azbuke", "\"%\" is no letter of the alphabet"},
    {Matter::many_letters, "U jednom polju stoji više slova: „%“",
     "Several letters stand in one cell: \"%\""},
    {Matter::uneven_parts, "Ukrštenica se ne može podeliti na toliko jednakih nastavaka",
     "The crossword does not divide into that many equal installments"},
    {Matter::installment_name, "Ime ukrštenice u nastavcima mora imati tačno pet znakova",
     "The name of a crossword in installments needs exactly five characters"},
    {Matter::refused_name, "Program ne otvara ukrštenicu s imenom „%“",
     "The program opens no crossword of the name \"%\""},
    {Matter::exists, "Datoteka % već postoji", "% exists"},
    {Matter::unknown_target, "Može se upisati: %", "What can be written: %"},
    {Matter::one_file_wanted, "Nastavci se ne mogu upisati u jednu datoteku",
     "Installments do not go into one file"},
    {Matter::unknown_medium,
     "Datoteka % nije ni slika, ni tekst, ni zvuk wav, ni muzika mid, ni film avi",
     "% is no picture, text, wav sound, mid music or avi film"},
    {Matter::no_words, "Ukrštenica nema nijednu reč", "The crossword has no word"},
    {Matter::cells_missing, "Datoteci % nedostaju polja", "Cells are missing in %"},
    {Matter::cell_form, "Polje nema pravilan oblik: „%“", "The cell breaks its form: \"%\""},
    {Matter::start_on_block, "Reč počinje u zauzetom polju", "A word starts in a blocked cell"},
    {Matter::clue_not_closed, "Opis nije zatvoren znakom $", "A clue is not closed by $"},
    {Matter::medium_refused, "Datoteka % nije u paketu, ili je program ne prima",
     "% is not in the pack, or the program does not take it"},
    {Matter::medium_cut, "Paket se završava pre kraja datoteke %", "The pack ends before %"},
    {Matter::medium_unplayable, "Sadržaj datoteke % nije ono što joj ime kaže",
     "% is not what its name says"},
    {Matter::too_large_to_draw, "Slika bi bila prevelika", "The picture would be too large"},
    {Matter::too_large_to_write, "Format prima najviše % redova i isto toliko kolona",
     "The format takes no more than % rows and as many columns"},
    {Matter::wrong_checksum, "Kontrolni zbir nije tačan", "A checksum is wrong"},
    {Matter::accent_taken_off, "Slovu „%“ skinut je akcenat", "The accent was taken off \"%\""},
    {Matter::rebus_shortened, "Od „%“ je ostalo prvo slovo", "Of \"%\" the first letter is left"},
    {Matter::no_letter_hidden, "Umesto „%“ stoji upitnik", "\"%\" has become a question mark"},
    {Matter::no_solution, "Polja bez rešenja ne mogu se proveriti",
     "Cells without a solution cannot be checked"},
    {Matter::circles_dropped, "Kružići u poljima su izostavljeni",
     "Circles in cells were left out"},
    {Matter::shades_dropped, "Boje polja su izostavljene", "Colours of cells were left out"},
    {Matter::pictures_dropped, "Slike iza polja su izostavljene",
     "Pictures behind cells were left out"},
    {Matter::numbers_differ, "Brojevi reči se razlikuju: %", "The numbers of words differ: %"},
    {Matter::clue_without_word, "Opis nema reč u mreži: %", "A clue has no word in the grid: %"},
    {Matter::word_without_clue, "Reč nema opis", "A word has no clue"},
    {Matter::answer_differs, "Rešenje uz opis razlikuje se od mreže: %",
     "The answer beside a clue differs from the grid: %"},
    {Matter::text_approximated, "Znak % zamenjen je sličnim",
     "% was replaced by what resembles it"},
    {Matter::text_lost, "Znak % zamenjen je upitnikom", "% was replaced by a question mark"},
    {Matter::dollar_replaced, "Znak $ u opisu zamenjen je upitnikom",
     "$ in a clue was replaced by a question mark"},
    {Matter::slash_moved, "Ispred kose crte na početku opisa umetnut je razmak",
     "A blank was put before the slash at the start of a clue"},
    {Matter::medium_missing, "Nema datoteke %; od opisa je ostao samo tekst",
     "% is missing; of its clue the text alone is left"},
    {Matter::medium_dropped, "Od multimedijalnog opisa ostao je samo tekst",
     "Of a multimedia clue the text alone is left"},
    {Matter::letters_simplified, "Slovo „%“ u mreži je uprošćeno",
     "The letter \"%\" is a plain one in the grid"},
    {Matter::word_without_start, "Slova jedno do drugog ne čine reč",
     "Letters in a row are no word"},
    {Matter::short_word, "Reč ima samo jedno slovo", "A word has one letter"},
    {Matter::marks_differ, "Oznake polja ne odgovaraju rečima koje u njemu počinju",
     "The marks of the cell differ from the words that start there"},
    {Matter::unused_medium, "Nijedan opis ne pominje datoteku %", "No clue names %"},
    {Matter::entry_lost, "Upisano slovo ne postoji u azbuci",
     "A letter of the user is not in the alphabet"},
    {Matter::entries_dropped, "Upisana slova su izostavljena",
     "The letters of the user were left out"},
    {Matter::holes_filled, "Praznine u mreži postale su crna polja",
     "Holes in the grid became blocks"},
    {Matter::blanks_dropped, "Razmaci u rešenjima su izostavljeni",
     "Blanks of answers were left out"},
    {Matter::texts_dropped, "Izostavljeno je: %", "Left out: %"},
};

}  // namespace

std::string TextOf(const Remark& remark, bool english) {
  const auto* const found = std::ranges::find(sentences, remark.matter, &Sentence::matter);
  if (found == std::end(sentences)) return remark.detail;
  std::string text(english ? found->english : found->serbian);
  if (const std::size_t place = text.find('%'); place != std::string::npos)
    text.replace(place, 1, remark.detail);
  if (remark.times > 1) text += " (" + std::to_string(remark.times) + "×)";
  return text;
}

}  // namespace kalvon::exchange
