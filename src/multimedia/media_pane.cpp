// SPDX-License-Identifier: MIT
#include "multimedia/media_pane.h"

#include <string_view>

#include "crossword/direction.h"
#include "crossword/media_kinds.h"
#include "crossword/media_table.h"
#include "display/grid_geometry.h"
#include "display/writing.h"
#include "document/crossword_state.h"
#include "files/binary_file.h"
#include "files/text_file.h"
#include "shell/forms/frm_glavni.h"
#include "shell/toolkit/events/program_end.h"

namespace kalvon {

namespace {

using files::pass_over;

constexpr std::size_t longest_text =
    std::size_t{256} * 1024;  // Bytes that a text clue shows at most.

/// The device that plays a medium, none for one that is only shown.
const char* DeviceOf(Medium medium) {
  switch (medium) {
    case Medium::sound:
      return "WaveAudio";
    case Medium::music:
      return "Sequencer";
    case Medium::video:
      return "AVIVideo";
    default:
      return "";
  }
}

toolkit::PictureBox& Pane() { return frm_glavni->pic_media(media_picture::pane); }
toolkit::PictureBox& Display() { return frm_glavni->pic_media(media_picture::display); }

void HideContent() {
  Display().Visible(false);
  auto& body = frm_glavni->txt_media(1);
  body.Visible(false);
  body.Text("");
  frm_glavni->mm_media.Visible(false);
}

void PlacePane() {
  Pane().Left(5);
  Pane().Top(glavni.smer == direction::across ? 42 : 268);
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

/// The temporary file, with CR LF also behind its last line; nothing if it cannot be read.
std::string ReadText() {
  std::string text(longest_text, '\0');
  const int failed =
      pass_over([&] { text.resize(files::BinaryReader(glavni.media_temp).Get(1, text).size()); });
  if (failed != 0) return {};
  if (text.size() < longest_text && !text.ends_with("\r\n")) text += "\r\n";
  return text;
}

void ShowText() {
  auto& body = frm_glavni->txt_media(1);
  body.Left(frm_glavni->txt_media(0).Left());
  body.Text(ShownText(ReadText(), ChosenWriting()));
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

void Show(Medium medium) {
  switch (medium) {
    case Medium::picture:
      return ShowPicture();
    case Medium::text:
      return ShowText();
    case Medium::video:
      return PlayVideo();
    default:
      return Play();
  }
}

/// Whether the file of a path is a medium in the program's folder, to be deleted when it is no
/// longer on show.
bool IsTemporaryMedium(std::string_view path) {
  return path.starts_with(glavni.app_staza) &&
         KindOfMedium(path.substr(glavni.app_staza.size())) != nullptr;
}

}  // namespace

void prikazi_media(const std::string& tip) {
  glavni.media_tip = tip;
  glavni.media_temp = glavni.app_staza + glavni.media_fajl;
  zatvori_mci();
  HideContent();
  PlacePane();
  if (const MediaKind* kind = FindMediaKind(tip)) Show(kind->medium);
  frm_glavni->txt_media(0).Text(ShownText(glavni.media_pitanje, ChosenWriting()));
  Pane().Visible(true);
}

void otvori_media() {
  zatvori_mci();
  auto& device = frm_glavni->mm_media;
  // A medium that does not play, or has played to its end, has no type: a click closes its pane.
  // It is opened again on the same device.
  const MediaKind* const kind = FindMediaKind(glavni.media_tip);
  if (kind != nullptr) device.DeviceType(DeviceOf(kind->medium));
  if (glavni.media_tip == "avi") {
    pass_over([] { Display().SetFocus(); });
    sacekaj(50);  // The picture's GotFocus tells its handle.
    device.hWndDisplay(glavni.media_hwnd);
  }
  device.FileName(glavni.app_staza + glavni.media_fajl);
  const bool failed = pass_over([&] { device.Command("Open"); }) != 0;
  if (glavni.media_gotovo == 1 || failed) {
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
