// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "crossword/direction.h"
#include "document/crossword_state.h"

namespace kalvon {

/// Pixels from one row of a clue list to the next.
inline constexpr int list_row_height = 15;
/// Rows of a clue list that are seen.
inline constexpr int list_rows = 14;

/// A clue of the page on the screen.
struct PageClue {
  int n = 0;          ///< Its index in the table `lista`, from 1.
  int number = 0;     ///< Its clue number.
  int first_row = 0;  ///< Its rows on the screen, from 1.
  int last_row = 0;
};

/// The clues on the page of a list (1 across, 2 down), from the top.
std::vector<PageClue> CluesOnPage(int strana);

/// The clue of the page that owns a row, from 1.
std::optional<PageClue> ClueOfRow(int strana, int row);

/// `lista_n1` or `lista_n2`.
inline Int16& CluesInList(int strana) {
  return strana == direction::down ? glavni.lista_n2 : glavni.lista_n1;
}

/// `lista_red1` or `lista_red2`.
inline Int16& LastPrintedRow(int strana) {
  return strana == direction::down ? glavni.lista_red2 : glavni.lista_red1;
}

/// `skrol1` or `skrol2`.
inline Int16& HandledScroll(int strana) {
  return strana == direction::down ? glavni.skrol2 : glavni.skrol1;
}

/// The rows of a list's bar: `oznaka1_od` and `oznaka1_do`, or those of list 2.
struct BarRows {
  Int16& first;
  Int16& last;
};
inline BarRows BarOfList(int strana) {
  if (strana == direction::down) return {glavni.oznaka2_od, glavni.oznaka2_do};
  return {glavni.oznaka1_od, glavni.oznaka1_do};
}

}  // namespace kalvon
