// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Puts the bar on the clue that owns the row (from 1) of a list (1 across, 2 down), and takes the
/// bar off the other list. An older bar of this list is the caller's to take off.
void oznaci_pitanje(int strana, int red);

/// Takes the bar off list 2, or for any other value off list 1, if it has one.
void ugasi_oznaku_pitanja(int strana);

/// Shows the bar of a list (1 across, 2 down), if it has one, on a page that was printed anew.
void ShowBarAnew(int strana);

/// Leaves one bar on the lists: on the clue of `sel_broj`, if the page of the list (1 across,
/// 2 down) holds it, and else none.
void MarkSelectedClue(int strana);

}  // namespace kalvon
