// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "files/run_time_error.h"

namespace kalvon {

/// A whole number that must fit 16 bits: storing another one raises error 6. The limits of a
/// crossword's size come from here.
class Int16 {
 public:
  Int16() = default;
  Int16(int value) : value_(static_cast<std::int16_t>(value)) {  // NOLINT: converts like a number
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max())
      throw files::RuntimeError(files::error::overflow);
  }
  operator int() const { return value_; }  // NOLINT: converts like a number

 private:
  std::int16_t value_ = 0;
};

/// The indexes of one dimension of a table, both ends included.
struct IndexRange {
  int lowest = 0;
  int highest = -1;
};

/// A table with named bounds for each dimension. An index out of range raises error 9. Its elements
/// come into being at the first write, so that a size that is never filled costs nothing.
template <typename Element, std::size_t Dimensions>
class Table {
 public:
  Table() = default;
  /// Error 9 for a dimension without an index.
  explicit Table(const std::array<IndexRange, Dimensions>& bounds) : bounds_(bounds) {
    for (const IndexRange& b : bounds_)
      if (b.highest < b.lowest) throw files::RuntimeError(files::error::subscript_out_of_range);
  }

  /// An element; one that was never written is empty.
  template <typename... Indexes>
  const Element& operator()(Indexes... indexes) const {
    const std::size_t place = Place({static_cast<int>(indexes)...});
    return elements_.empty() ? Empty() : elements_[place];
  }

  /// An element, to be written.
  template <typename... Indexes>
  Element& Mutable(Indexes... indexes) {
    const std::size_t place = Place({static_cast<int>(indexes)...});
    if (elements_.empty()) elements_.resize(Size());
    return elements_[place];
  }

 private:
  [[nodiscard]] std::size_t Place(const std::array<int, Dimensions>& indexes) const {
    std::size_t place = 0;
    for (std::size_t d = 0; d < Dimensions; ++d) {
      const auto [lowest, highest] = bounds_[d];
      if (indexes[d] < lowest || indexes[d] > highest)
        throw files::RuntimeError(files::error::subscript_out_of_range);
      place = place * static_cast<std::size_t>(highest - lowest + 1) +
              static_cast<std::size_t>(indexes[d] - lowest);
    }
    return place;
  }

  [[nodiscard]] std::size_t Size() const {
    std::size_t size = 1;
    for (const auto [lowest, highest] : bounds_)
      size *= static_cast<std::size_t>(highest - lowest + 1);
    return size;
  }

  static const Element& Empty() {
    static const Element empty{};
    return empty;
  }

  std::array<IndexRange, Dimensions> bounds_{};
  std::vector<Element> elements_;
};

/// A cell of the grid, counted from 1.
struct GridCell {
  int x = 0;
  int y = 0;
};

/// All that the program knows of the loaded crossword, and all that its procedures remember between
/// two events. Grid coordinates count from 1, x from the left and y from the top, over the whole
/// joined crossword; view cells from 1 to 15.
struct CrosswordState {
  // Grid and clue numbers.
  Table<std::string, 3> ukr_polja;  ///< (x, y, 1) cell string, (x, y, 2) attribute line.
  Int16 ukr_sirina, ukr_visina;     ///< Columns and rows.
  Table<std::int32_t, 2> rec_broj;  ///< (x, y) clue number, 0 for a cell that starts no word.
  Table<std::int32_t, 2> pitanja;   ///< (n, 1) kind: 1 across, 2 down, 3 both; (n, 2) x; (n, 3) y.
  std::int32_t broj_pitanja = 0;    ///< The highest clue number.
  std::int32_t br_vodoravnih = 0, br_uspravnih = 0, br_crnih = 0;  ///< Words and blocked cells.

  // Installments.
  std::string ukr_staza;           ///< Path of the file chosen in the dialog.
  std::string ukr_ucitana;         ///< Path of the crossword in the grid, in the case of the disk.
  Int16 nast_cifre;                ///< Digits that end its name; 3 says that it is numbered.
  std::string ukr_osnova;          ///< Its name without extension and number.
  Int16 nast_sirina, nast_visina;  ///< Columns and rows of one installment.
  Int16 nast_tekuci, nast_zadnji;  ///< Number of the chosen one, and the highest in the folder.
  Table<Int16, 1> nast_ucitan;     ///< (1..nast_zadnji) its own number, or -1 if it is missing.
  Table<std::int32_t, 1> nast_polja;  ///< (1..nast_zadnji) cells that its file held.
  Int16 nast_smer;                    ///< Joined 1 side by side, 2 one under the other, 0 not said.
  std::string nule;                   ///< Leading zeros of installment numbers.

  // View, selection and word editor.
  Int16 pogled_x, pogled_y;               ///< Grid cell in the view's top left corner.
  Int16 klik_x, klik_y;                   ///< Clicked view cell.
  Int16 smer;                             ///< Direction of the word: 1 across, 2 down.
  Int16 rec_x1, rec_x2, rec_y1, rec_y2;   ///< First and last column and row of the word.
  int pret_x1 = 0, pret_x2 = 0;           ///< Columns of the word marked before it.
  int pret_y1 = 0, pret_y2 = 0;           ///< Rows of the word marked before it.
  Int16 prelaz, prelaz_oba, prelaz_smer;  ///< Direction between a clue click and a cell click.
  Int16 iz_liste;                         ///< 1 while the click comes from a clue list.
  std::int32_t sel_broj = 0;              ///< Clue number of the selected word, 0 for none.
  Int16 sel_strana;                       ///< List that has its bar: 1 across, 2 down.
  std::string rec_tekst;                  ///< Letters in the editor, "_" for an empty place.
  std::vector<GridCell> rec_polja;        ///< Cells that the letters in the editor belong to.
  Int16 rec_poz;                          ///< Index of the focused letter box.
  std::string azbuka;                     ///< Alphabet of typed letters, in its order.
  std::string znak;                       ///< Result of the letter routines.

  // Clue lists: (n, column, side), side 1 across and 2 down; column 1 text, 2 x, 3 y, 4 rows,
  // 5 media name.
  Table<std::string, 3> lista{{{{0, 50}, {0, 5}, {0, 2}}}};
  Int16 lista_n1, lista_n2;      ///< Clues on the page of each list.
  Int16 lista_red1, lista_red2;  ///< Last printed row of each list, from 0; -1 before the first.
  Int16 skrol1, skrol2;          ///< Values of the list bars as last handled.
  Int16 skrol_aktivan;           ///< Changes of the list bars are handled only while it is 1.
  Int16 lista_strana;            ///< List that the next redraw touches: 0 both, 1, 2.
  Int16 oznaka1_od, oznaka1_do;  ///< Marked rows of list 1, from 1; 0 for none.
  Int16 oznaka2_od, oznaka2_do;  ///< Marked rows of list 2.

  // Multimedia.
  Table<std::string, 1> media_sadrzaj;  ///< (1..nast_zadnji) table of the media pack.
  std::string media_fajl;               ///< Media name of the clicked clue.
  std::string media_pitanje;            ///< Text of the clicked clue.
  std::string media_tip;                ///< Open media type.
  std::string media_temp;               ///< Path of the file on show, to delete.
  Int16 media_gotovo;                   ///< 1 once the device has reported that it is done.
  int media_hwnd = 0;                   ///< Handle of the video surface.

  // Progress of a load.
  std::int32_t napredak_br = 0;     ///< Steps since the last column of the bar.
  std::int32_t napredak_korak = 0;  ///< Steps to one column.
  Int16 napredak_x;                 ///< Last column drawn.

  // The shell's values.
  std::string app_staza;             ///< Folder of the program, ending in "\".
  Int16 jezik;                       ///< Language of the interface: 0 Serbian, 1 English.
  Int16 pre_ucitavanja;              ///< 1 until the first crossword has been loaded.
  Int16 forma_sirina, forma_visina;  ///< Size at which the main form is held, in twips.
  Int16 pomoc_otvorena;              ///< 1 while the help panel is open.
  std::string font_ime;              ///< Text font of the interface.
  Int16 dijalog_rezim;               ///< Dialog mode: 1 load, 2 save.
};

/// The one record; every procedure reads and writes it directly.
extern CrosswordState glavni;

// A cell string: the solution letter, the user's letter if there is one, and from the first "$" on
// the fields that are only carried. A string that begins with "$" is a blocked cell.

/// Whether a word may lie in the cell: it is neither blocked nor empty.
bool IsLetterCell(std::string_view cell);
/// The user's letter in a letter cell, or "" without one.
std::string_view UserLetter(std::string_view cell);
/// A letter cell without the user's letter.
std::string WithoutUserLetter(std::string_view cell);
/// A letter cell with this user's letter in place of the one that it has, if any.
std::string WithUserLetter(std::string_view cell, char letter);

/// Whether a word of the direction (1 across, 2 down) starts in the cell of the attribute line.
bool StartsWord(std::string_view attributes, int direction);

/// The text behind the first `count` marks; empty if there are fewer.
std::string_view Behind(std::string_view text, char mark, int count = 1);

/// The whole number that a text begins with: blanks, a sign, digits. 0 for a text without one; a
/// number beyond 32 bits gives their limit.
int DecimalValue(std::string_view text);

/// The number of an installment as file names hold it, three digits long.
std::string InstallmentDigits(int number);

/// Path of an installment's crossword ("qvm") or media pack ("qvd") of the crossword in the grid. A
/// crossword without numbers is its own only installment. Error 5 if `ukr_ucitana` is too short.
std::string InstallmentPath(int number, std::string_view extension);

}  // namespace kalvon
