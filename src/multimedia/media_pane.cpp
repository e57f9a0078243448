// SPDX-License-Identifier: MIT
#include "multimedia/media_pane.h"

#include <algorithm>

#include "display/grid_geometry.h"
#include "document/crossword_state.h"
#include "document/media_file.h"
#include "files/text_file.h"
#include "letters/letter_conversion.h"
#include "shell/forms/frm_glavni.h"
#include "shell/toolkit/events/program_end.h"

namespace kalvon {

namespace {

using files::pass_over;

constexpr std::size_t longest_text =
    std::size_t{256} * 1024;  // Bytes that a text clue shows at most.

struct Device {
  const char* tip;
  const char* type;
};

constexpr Device devices[] = {{"avi", "AVIVideo"}, {"wav", "WaveAudio"}, {"mid", "Sequencer"}};

toolkit::PictureBox& Pane() { return frm_glavni->pic_media(4); }
toolkit::PictureBox& Display() { return frm_glavni->pic_media(5); }

void HideContent() {
  Display().Visible(false);
  auto& body = frm_glavni->txt_media(1);
  body.Visible(false);
  body.Text("");
  frm_glavni->mm_media.Visible(false);
}

void PlacePane() {
  Pane().Left(5);
  Pane().Top(glavni.smer == 1 ? 42 : 268);
}

void CentreDisplay() {
  Display().Left(HalfDown(Pane().Width() - Display().Width()));
  Display().Top(frm_glavni->txt_media(1).Top());
}

void ShowPicture() {
  pass_over([] { Display().Picture(toolkit::LoadPicture(glavni.media_temp)); });
  CentreDisplay();
  Display().Visible(true);
}

/// The lines of the temporary file, each closed by CR LF; one empty line for an empty file.
std::string ReadText() {
  std::string text;
  pass_over([&] {
    files::TextReader file(glavni.media_temp);
    do {
      std::string line;
      pass_over([&] { line = file.Line(); });
      text.append(line).append("\r\n");
    } while (!file.AtEnd() && text.size() < longest_text);
  });
  if (text.size() > longest_text) text.resize(longest_text);
  return text;
}

void ShowText() {
  auto& body = frm_glavni->txt_media(1);
  body.Left(frm_glavni->txt_media(0).Left());
  body.Text(ShownText(ReadText()));
  body.Visible(true);
}

void Play() {
  frm_glavni->mm_media.Visible(true);
  otvori_media();
  pass_over([] { frm_glavni->mm_media.Command("Play"); });
}

void PlayVideo() {
  Display().Picture(toolkit::LoadPicture(""));
  Display().Width(160);
  Display().Height(120);
  CentreDisplay();
  Pane().Visible(true);  // A picture inside a hidden pane cannot take the focus.
  Display().Visible(true);
  pass_over([] { Display().SetFocus(); });
  Play();
}

}  // namespace

void prikazi_media(const std::string& tip) {
  glavni.media_tip = tip;
  glavni.media_temp = glavni.app_staza + glavni.media_fajl;
  zatvori_mci();
  HideContent();
  PlacePane();
  if (tip == "bmp")
    ShowPicture();
  else if (tip == "avi")
    PlayVideo();
  else if (tip == "txt")
    ShowText();
  else if (tip == "mid" || tip == "wav")
    Play();
  frm_glavni->txt_media(0).Text(ShownText(glavni.media_pitanje));
  Pane().Visible(true);
}

void otvori_media() {
  zatvori_mci();
  auto& device = frm_glavni->mm_media;
  // A medium that has played to its end has no type any more, and is opened on the same device.
  const auto* found = std::ranges::find(devices, glavni.media_tip, &Device::tip);
  if (found != std::end(devices)) device.DeviceType(found->type);
  if (glavni.media_tip == "avi") {
    pass_over([] { Display().SetFocus(); });
    sacekaj(50);  // The picture's GotFocus tells its handle.
    device.hWndDisplay(glavni.media_hwnd);
  }
  device.FileName(glavni.app_staza + glavni.media_fajl);
  pass_over([&] { device.Command("Open"); });
  if (glavni.media_gotovo == 1) {
    glavni.media_tip.clear();
    glavni.media_gotovo = 0;
  }
}

void zatvori_media() {
  zatvori_mci();
  obrisi_temp();
  Pane().Picture(toolkit::LoadPicture(""));
  Pane().Visible(false);
  // Behind an open dialog the main form takes no focus, and goes without it.
  auto& first = frm_glavni->txt_rec(0);
  if (first.Enabled()) pass_over([&] { first.SetFocus(); });
}

void zatvori_mci() { frm_glavni->mm_media.Command("close"); }

void obrisi_temp() {
  if (glavni.media_temp.empty()) return;
  if (IsTemporaryMedium(glavni.media_temp)) pass_over([] { files::Kill(glavni.media_temp); });
  glavni.media_temp.clear();
}

void sacekaj(int n) {
  for (int i = 0; i < n; ++i) toolkit::DoEvents();
}

}  // namespace kalvon
