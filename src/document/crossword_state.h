// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "crossword/crossword.h"
#include "crossword/journal.h"
#include "crossword/letter_counts.h"
#include "document/news.h"

namespace kalvon {

/// A place of the word in the editor, and the letter that stood there before one was typed.
struct TypedPlace {
  int place = 0;
  char before = '_';
};

/// The loaded crossword, and all that the procedures remember between two events. View cells count
/// from 1 to 15.
struct CrosswordState : Crossword {
  std::string ukr_staza;  ///< Path of the file chosen in the dialog.

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
  Int16 rec_poz;                          ///< Letter of the word at which the keys act, from 0.
  int rec_prvo = 0;                       ///< Letter in the first box; not 0 in a long word alone.
  char32_t znak = 0;                      ///< Last character typed, as the keyboard gave it.
  std::vector<TypedPlace> otkucano;       ///< What was typed since the boxes were filled.
  bool rec_se_kuca = false;  ///< Whether the last step was typed into the word in the editor.

  // Choices of the menu.
  bool bira_jedinu = false;    ///< A click on a cell with one word selects it.
  bool upis_u_hodu = false;    ///< Letters go into the cells as they are typed.
  bool vreme_u_traci = false;  ///< The strip shows the time spent.

  // Steps, and what the user is told.
  std::shared_ptr<Journal> dnevnik;  ///< None before a crossword, and after a load that failed.
  LetterCounts slova;
  bool izmenjeno = false;  ///< Whether the letters differ from those in the files.
  Vest vest;

  // Time spent on the crossword.
  /// When it was last counted; none while the window is not active.
  std::optional<std::chrono::steady_clock::time_point> vreme_od;
  std::chrono::steady_clock::duration vreme_ostatak{};  ///< What the journal does not have yet.

  bool visok_kontrast = false;  ///< Whether black, white and one strong colour are drawn with.

  /// Whether the letters of the other script's keyboard are taken.
  bool sve_tastature = false;

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
  std::string media_fajl;     ///< Media name of the clicked clue.
  std::string media_pitanje;  ///< Text of the clicked clue.
  std::string media_tip;      ///< Open media type.
  std::string media_temp;     ///< Path of the file on show, to delete.
  Int16 media_gotovo;         ///< 1 once the device has reported that it is done.
  int media_hwnd = 0;         ///< Handle of the video surface.

  // Progress of a load.
  std::int32_t napredak_br = 0;     ///< Steps since the last column of the bar.
  std::int32_t napredak_korak = 0;  ///< Steps to one column.
  Int16 napredak_x;                 ///< Last column drawn.

  // The shell's values.
  std::string app_staza;             ///< Folder of the program, ending in "\".
  Int16 jezik;                       ///< Language of the interface: 0 Serbian, 1 English.
  std::vector<std::string> nedavne;  ///< Host paths of the crosswords opened last, newest first.
  Int16 pre_ucitavanja;              ///< 1 until the first crossword has been loaded.
  Int16 forma_sirina, forma_visina;  ///< Size at which the main form is held, in twips.
  Int16 pomoc_otvorena;              ///< 1 while the help panel is open.
  std::string font_ime;              ///< Text font of the interface.
  Int16 dijalog_rezim;               ///< Dialog mode: 1 load, 2 save.
};

/// The one record; every procedure reads and writes it directly.
extern CrosswordState glavni;

}  // namespace kalvon
