// SPDX-License-Identifier: MIT
#include "display/fonts.h"

#include "display/writing.h"
#include "shell/forms/frm_glavni.h"

namespace kalvon {

namespace {

constexpr int own_charset = 0;
constexpr int cyrillic_charset = 204;
constexpr int central_european_charset = 238;

int CharsetOfOptions() {
  const Writing writing = ChosenWriting();
  if (!writing.code_page) return own_charset;
  return writing.latin ? central_european_charset : cyrillic_charset;
}

}  // namespace

void postavi_charset() {
  const int charset = CharsetOfOptions();
  ForEachLetterControl([charset](toolkit::Control& control) { control.Charset(charset); });
  // A standard font is wider than the national ones. The size for those comes back with the next
  // printing of a list, which sets it before it calls here.
  if (charset != own_charset)
    frm_glavni->pic_tekst.ForEach([](toolkit::PictureBox& list) { list.FontSize(8); });
  frm_glavni->lbl_sirina.Charset(charset);
}

int MeasuredWidth(const std::string& text) {
  frm_glavni->lbl_sirina.Caption(text);
  return frm_glavni->lbl_sirina.Width();
}

}  // namespace kalvon
