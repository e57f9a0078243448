// SPDX-License-Identifier: MIT
#include "display/writing.h"

#include "document/crossword_state.h"
#include "shell/forms/frm_opcije.h"

namespace kalvon {

Writing ChosenWriting() {
  return {.english = glavni.jezik == 1,
          .latin = frm_opcije->opt_opcije(script::latin).Value(),
          .code_page = frm_opcije->opt_opcije1(layout::code_page).Value()};
}

}  // namespace kalvon
