// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "shell/forms/frm_glavni.h"

namespace kalvon {

/// Gives the controls that show letters the charset of the options, and the lists their smaller
/// size for a standard font.
void postavi_charset();

/// Width in pixels of a text in the font of `lbl_sirina`. Whoever measures sets that font first.
int MeasuredWidth(const std::string& text);

/// Gives a control the font of a text to draw or to measure.
inline void SetFont(toolkit::Control& control, const std::string& name, double points, bool bold) {
  control.FontName(name);
  control.FontSize(points);
  control.FontBold(bold);
}

/// Applies an action to each control whose letters follow the options: lists, grid, letter boxes,
/// and the text boxes of the multimedia pane.
template <typename Action>
void ForEachLetterControl(Action action) {
  frm_glavni->pic_tekst.ForEach(action);
  action(frm_glavni->pic_ukr);
  frm_glavni->txt_rec.ForEach(action);
  frm_glavni->txt_media.ForEach(action);
}

}  // namespace kalvon
