// SPDX-License-Identifier: MIT
#include "support/puzzle_test.h"

namespace kalvon::testing {
namespace {

using FontChange = PuzzleTest;

TEST_F(FontChange, ReachesEveryControlThatShowsLetters) {
  Solve({.rows = {"ABC", "D#E", "FGH"}, .letters = {"[^A"}});
  const QImage own_grid = Shown("pic_ukr");
  for (const auto& [script, layout, font, charset, list_size] :
       {std::tuple{0, 0, "C_Kalvon", 0, 9.0},
        {0, 1, "Arial", 204, 8.0},
        {1, 1, "Arial", 238, 8.0},
        {1, 0, "Kalvon", 0, 9.0}}) {
    Choose(script, layout);
    const auto expect_font = [name = font, code = charset](toolkit::Control& control) {
      EXPECT_EQ(control.FontName(), name);
      EXPECT_EQ(control.Charset(), code);
    };
    frm_glavni->pic_tekst.ForEach(expect_font);
    frm_glavni->txt_rec.ForEach(expect_font);
    frm_glavni->txt_media.ForEach(expect_font);
    expect_font(frm_glavni->pic_ukr);
    for (const int list : {0, 1}) EXPECT_EQ(frm_glavni->pic_tekst(list).FontSize(), list_size);
    EXPECT_EQ(Shown("pic_ukr") == own_grid, std::string(font) == "Kalvon");
    ExpectScreenOfState();
  }
}

}  // namespace
}  // namespace kalvon::testing
