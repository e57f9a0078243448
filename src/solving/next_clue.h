// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Selects the next word that has an empty cell: behind the selected one in its list, then in the
/// other list, then from the beginning.
void sledeca_prazna();

}  // namespace kalvon
