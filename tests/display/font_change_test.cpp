// SPDX-License-Identifier: MIT
#include "support/puzzle_test.h"

namespace kalvon::testing {
namespace {

using FontChange = PuzzleTest;

TEST_F(FontChange, ReachesEveryControlThatShowsLetters) {
  struct Choice {
    int script, layout;
    const char* font;
    int charset;
    double list_size;
  };
  Solve({.rows = {"ABC", "D#E", "FGH"}, .letters = {"[^A"}});
  const QImage own_grid = Shown("pic_ukr");
  for (const Choice& c : {Choice{0, 0, "C_Kalvon", 0, 9},
                          {0, 1, "Arial", 204, 8},
                          {1, 1, "Arial", 238, 8},
                          {1, 0, "Kalvon", 0, 9}}) {
    Choose(c.script, c.layout);
    const auto expect_font = [&](toolkit::Control& control) {
      EXPECT_EQ(control.FontName(), c.font);
      EXPECT_EQ(control.Charset(), c.charset);
    };
    frm_glavni->pic_tekst.ForEach(expect_font);
    frm_glavni->txt_rec.ForEach(expect_font);
    frm_glavni->txt_media.ForEach(expect_font);
    expect_font(frm_glavni->pic_ukr);
    for (const int list : {0, 1}) EXPECT_EQ(frm_glavni->pic_tekst(list).FontSize(), c.list_size);
    EXPECT_EQ(Shown("pic_ukr") == own_grid, std::string(c.font) == "Kalvon");
    ExpectScreenOfState();
  }
}

}  // namespace
}  // namespace kalvon::testing
