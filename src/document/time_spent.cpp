// SPDX-License-Identifier: MIT
#include "document/time_spent.h"

#include <chrono>
#include <cstdint>

#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"

namespace kalvon {

namespace {

using std::chrono::minutes;
using std::chrono::seconds;
// On this host it stands still while the machine is suspended.
using Clock = std::chrono::steady_clock;

void Count() {
  if (!glavni.vreme_od) return;
  const auto now = Clock::now();
  glavni.vreme_ostatak += now - *glavni.vreme_od;
  glavni.vreme_od = now;
}

/// Gives the whole seconds to the journal; less than one is left.
void TellJournal() {
  const auto whole = std::chrono::floor<seconds>(glavni.vreme_ostatak);
  if (whole == seconds(0)) return;
  glavni.dnevnik->Spend(static_cast<std::uint64_t>(whole.count()));
  glavni.vreme_ostatak -= whole;
}

/// From what has been counted to the next whole minute of all the time that the journal knows.
Clock::duration ToWholeMinute() {
  const seconds begun(glavni.dnevnik->Spent() % 60);
  return minutes(1) - begun - glavni.vreme_ostatak;
}

}  // namespace

void nastavi_vreme() {
  glavni.vreme_od = Clock::now();
  meri_vreme();
}

void zastani_vreme() {
  meri_vreme();
  glavni.vreme_od.reset();
  frm_glavni->minute.Stop();
}

void meri_vreme() {
  if (!glavni.dnevnik) return;
  Count();
  if (ToWholeMinute() <= seconds(0)) TellJournal();
  frm_glavni->minute.Start(std::chrono::ceil<std::chrono::milliseconds>(ToWholeMinute()));
}

void upisi_vreme() {
  if (!glavni.dnevnik) return;
  Count();
  TellJournal();
  glavni.vreme_ostatak = {};
}

}  // namespace kalvon
