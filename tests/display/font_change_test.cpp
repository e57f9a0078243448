// SPDX-License-Identifier: MIT
#include "display/font_change.h"

#include "display/display_test.h"

namespace kalvon::testing {

namespace {

using FontChange = DisplayTest;

TEST_F(FontChange, ReachesEveryControlThatShowsLetters) {
  struct Case {
    int script, layout;
    const char* font;
    int charset;
    double list_size;
  };
  LoadText({.rows = {"ABC", "D#E", "FGH"}, .letters = {"[^A"}});
  std::vector<QImage> grids;
  for (const Case& c : {Case{0, 0, "C_Kalvon", 0, 9},
                        {0, 1, "Arial", 204, 8},
                        {1, 0, "Kalvon", 0, 9},
                        {1, 1, "Arial", 238, 8},
                        {1, 0, "Kalvon", 0, 9}}) {
    frm_opcije->opt_opcije(c.script).Value(true);
    frm_opcije->opt_opcije1(c.layout).Value(true);
    primeni_font();
    EXPECT_EQ(glavni.font_ime, c.font);
    const auto expect_font = [&](toolkit::Control& control) {
      EXPECT_EQ(control.FontName(), c.font);
      EXPECT_EQ(control.Charset(), c.charset);
    };
    frm_glavni->pic_tekst.ForEach(expect_font);
    frm_glavni->txt_rec.ForEach(expect_font);
    frm_glavni->txt_media.ForEach(expect_font);
    expect_font(frm_glavni->pic_ukr);
    EXPECT_EQ(frm_glavni->pic_tekst(0).FontSize(), c.list_size);
    EXPECT_EQ(frm_glavni->pic_tekst(1).FontSize(), c.list_size);
    ExpectMarksOfState();
    grids.push_back(Shown("pic_ukr"));
  }
  EXPECT_NE(grids[0], grids[2]) << "Cyrillic and Latin letters look alike";
  EXPECT_EQ(grids[2], grids[4]);
}

TEST_F(FontChange, FailingPartLeavesTheOthersToRun) {
  LoadText({.rows = {"ABC", "D#E", "FGH"}});
  glavni.pitanja = Table<std::int32_t, 2>({{{0, 1}, {0, 3}}});  // No list finds its clues now.
  glavni.font_ime = "";
  frm_glavni->pic_ukr.FilledBox(0, 0, 419, 419, 0);
  frm_glavni->txt_rec(0).Text("?");
  primeni_font();
  EXPECT_NE(glavni.font_ime, "");
  EXPECT_EQ(PixelOf("pic_ukr", 26, 26), marked);
  EXPECT_EQ(frm_glavni->txt_rec(0).Text(), "_");
}

}  // namespace

}  // namespace kalvon::testing
