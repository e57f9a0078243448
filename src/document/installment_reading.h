// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "document/crossword_state.h"

namespace kalvon {

/// What was read of each installment. It becomes `nast_ucitan` and `nast_polja`, by which the
/// crossword is saved, only once the whole crossword has been read.
struct InstallmentsRead {
  Table<Int16, 1> number;        ///< Its own number, or -1 if it is missing.
  Table<std::int32_t, 1> cells;  ///< Cells that its file held.
};

/// Reads all installments, joined as `joined` says, into `ukr_polja`, `media_sadrzaj` and the
/// counters of words and blocked cells, and moves the progress bar. `folder` are the files beside
/// the chosen one; an installment that is not among them is filled with black squares. Errors of a
/// file that cannot be read, or of a cell outside the grid, end the reading.
InstallmentsRead ReadInstallments(const std::vector<std::string>& folder, int joined);

}  // namespace kalvon
