// SPDX-License-Identifier: MIT
#include "shell/forms/frm_glavni.h"

#include <string>

namespace kalvon {

using toolkit::Alignment;
using toolkit::BuiltInPicture;
using toolkit::Lines;
using toolkit::Orientation;

toolkit::FormHandle<FrmGlavni> frm_glavni;

namespace {

constexpr int letter_boxes = 15;
constexpr int letter_box_tab[letter_boxes] = {28, 30, 31, 32, 33, 34, 35, 36,
                                              37, 38, 39, 40, 41, 42, 43};
constexpr int position_left[letter_boxes] = {350, 369, 388, 408, 427, 446, 465, 485,
                                             502, 521, 540, 560, 578, 597, 617};
constexpr int position_tab = 58;  // The first position's; the tab indexes run backwards.

constexpr toolkit::Colour gray = 0xC0C0C0;

}  // namespace

FrmGlavni::FrmGlavni()
    : Form({.name = "frm_glavni",
            .caption = "Vostrand KALVON Multimedia",
            .border = toolkit::Border::sizeable,
            .scale = toolkit::Scale::pixels,
            .inner_width = 9600,
            .inner_height = 7245}),
      pic_ukr(*this, {"pic_ukr", {200, 44, 420, 420}, 0}),
      scr_ver(*this, {"scr_ver", {620, 44, 17, 423}, 4}),
      scr_hor(*this, {"scr_hor", {199, 462, 421, 17}, 1}, Orientation::horizontal),
      txt_rec1(*this, {"txt_rec1", {580, 420, 439, 437}, 59}, Lines::multiple),
      // The pane lies over the clue lists, so it is made before what stands in it.
      mm_media(
          (pic_media.Add(*this, {"pic_media", {4, 268, 177, 210}, 22, "", media_picture::pane})),
          {"mm_media", {8, 180, 92, 23}, 26}),
      pic_sirina(*this, {"pic_sirina", {-16, 33, 21, 15}, 3}),
      lbl_sirina(*this, {"lbl_sirina", {-25, 16, 32, 13}, 2, "Label1"}),
      Label2(*this, {"Label2", {612, 28, 24, 14}, 60, "Re~"}),
      strip(AddStrip()) {
  Icon("kalvon.ico");

  // The column ruler reaches two rows into the buttons and letter boxes, which stand in front.
  pic_brojevi.Add(*this, {"pic_brojevi", {199, 27, 436, 15}, 12, "", 1});
  pic_brojevi.Add(*this, {"pic_brojevi", {183, 46, 15, 419}, 11, "", 0});
  pic_brojevi.ForEach([](toolkit::PictureBox& ruler) { ruler.BackColor(gray); });

  cmd_glavni.Add(*this, {"cmd_glavni", {6, 6, 47, 23}, 13, "&U~itaj", command::load});
  cmd_glavni.Add(*this, {"cmd_glavni", {52, 6, 45, 23}, 14, "&Snimi", command::save});
  cmd_glavni.Add(*this, {"cmd_glavni", {96, 6, 45, 23}, 16, "&Re{i", command::solve});
  cmd_glavni.Add(*this, {"cmd_glavni", {139, 6, 45, 23}, 17, "&Bri{i", command::erase});
  cmd_glavni.Add(*this, {"cmd_glavni", {184, 6, 56, 23}, 27, "&Opcije", command::options});
  cmd_glavni.Add(*this, {"cmd_glavni", {238, 6, 52, 23}, 29, "&Pomo}", command::help});
  cmd_glavni.Add(*this, {"cmd_glavni", {289, 6, 45, 23}, 15, "&Kraj", command::end});
  cmd_glavni.ForEach([](toolkit::Button& button) {
    button.FontName("Kalvon");
    button.FontSize(9.75);
  });

  for (int i = 0; i < letter_boxes; ++i) {
    auto& box =
        txt_rec.Add(*this, {"txt_rec", {350 + 19 * i, 10, 20, 19}, letter_box_tab[i], "", i});
    box.Flat();
    box.Align(Alignment::center);
    box.FontName("Kalvon");
    box.FontSize(9);
    auto& position = lbl_rec.Add(*this, {"lbl_rec",
                                         {position_left[i], -1, 19, 11},
                                         position_tab - i,
                                         std::to_string((i + 1) % 10),
                                         i});
    position.Align(Alignment::center);
    position.Visible(false);
  }

  Label1.Add(*this, {"Label1", {6, 30, 91, 15}, 9, "Vodoravno", 0});
  Label1.Add(*this, {"Label1", {5, 256, 91, 15}, 10, "Uspravno", 1});
  Label1.ForEach([](toolkit::Label& heading) {
    heading.FontBold(true);
    heading.Lift(2);
  });

  pic_tekst.Add(*this, {"pic_tekst", {5, 42, 161, 210}, 5, "", 0});
  pic_tekst.Add(*this, {"pic_tekst", {5, 268, 161, 210}, 7, "", 1});
  pic_tekst.ForEach([](toolkit::PictureBox& list) {
    list.Framed();
    list.FontName("Arial");
    list.Charset(238);
  });
  scr_tekst.Add(*this, {"scr_tekst", {165, 42, 17, 210}, 6, "", 0});
  scr_tekst.Add(*this, {"scr_tekst", {165, 268, 17, 210}, 8, "", 1});
  scr_tekst.ForEach([](toolkit::ScrollBar& bar) { bar.LargeChange(5); });
  for (const int list : {0, 1}) pic_tekst(list).WheelMoves(scr_tekst(list));

  // The drawing pixels of the grid stand in front of the bars: the lower bar overlaps two rows.
  pic_ukr.Framed();
  pic_ukr.BringToFront();
  pic_ukr.Picture(BuiltInPicture("title.bmp"));
  scr_ver.LargeChange(10);
  scr_hor.LargeChange(10);
  pic_ukr.WheelMoves(scr_ver);
  pic_ukr.WheelMoves(scr_hor);

  txt_rec1.Flat();
  txt_rec1.Lock();
  txt_rec1.FontName("Kalvon");
  txt_rec1.FontSize(11.25);
  txt_rec1.Visible(false);

  const char* const icons[] = {"icon_picture.bmp", "icon_text.bmp", "icon_sound.bmp",
                               "icon_video.bmp"};
  const int icon_top[] = {52, 70, 86, 102};
  for (int i = 0; i < 4; ++i) {
    auto& icon = pic_media.Add(*this, {"pic_media", {-9, icon_top[i], 14, 14}, 18 + i, "", i});
    icon.AutoSize(true);
    icon.Picture(BuiltInPicture(icons[i]));
    icon.Visible(false);
  }

  auto& pane = pic_media(media_picture::pane);
  txt_media.Add(pane, {"txt_media", {7, 5, 162, 40}, 23, "", 0}, Lines::multiple);
  auto& body = txt_media.Add(pane, {"txt_media", {157, 50, 162, 154}, 24, "", 1}, Lines::multiple);
  txt_media.ForEach([](toolkit::TextBox& box) {
    box.Flat();
    box.Lock();
  });
  body.FontSize(12);
  body.Visible(false);
  auto& screen =
      pic_media.Add(pane, {"pic_media", {152, 57, 160, 120}, 25, "", media_picture::display});
  screen.BackColor(0);
  screen.AutoSize(true);
  screen.Visible(false);
  mm_media.Visible(false);
  pane.Framed();
  pane.Visible(false);
  pane.BringToFront();

  pic_sirina.ScaleMode(toolkit::Scale::twips);
  pic_sirina.Visible(false);
  lbl_sirina.AutoSize(true);
  lbl_sirina.Visible(false);
  Label2.FontName("Kalvon");
  Label2.FontSize(9.75);
  Label2.FontBold(true);
  Label2.Align(Alignment::right);
  Label2.AutoSize(true);
  Label2.Visible(false);
  txt_rec1.BringToFront();
}

}  // namespace kalvon
