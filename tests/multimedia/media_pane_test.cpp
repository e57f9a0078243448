// SPDX-License-Identifier: MIT
#include "multimedia/media_pane.h"

#include <QImage>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolButton>

#include "shell/toolkit/events/program_end.h"
#include "support/program_test.h"

namespace kalvon::testing {

/// The pane, opened on files that lie in the program's folder as if a pack had given them.
class MediaPaneTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Load("velika.qvm");
  }

  void Show(const std::string& name, const std::optional<std::string>& bytes = {}) const {
    if (bytes) WriteFile(name, *bytes);
    glavni.media_fajl = name;
    glavni.media_pitanje = "Qubav";
    prikazi_media(name.substr(name.size() - 3));
  }

  void ExpectOpen(bool open, const std::string& file) const {
    EXPECT_EQ(Widget("pic_media(4)")->isVisible(), open);
    EXPECT_EQ(std::filesystem::exists(folder() / file), open);
  }
  [[nodiscard]] bool Plays() const { return BarButton("stop")->isEnabled(); }
  [[nodiscard]] QToolButton* BarButton(const char* name) const {
    return Widget("mm_media")->findChild<QToolButton*>(QString::fromLatin1(name));
  }
  void Press(const char* name) { QTest::mouseClick(BarButton(name), Qt::LeftButton); }
  /// What has played to its end has no type any more.
  static bool HasEnded() {
    return QTest::qWaitFor([] { return glavni.media_tip.empty(); }, 10'000);
  }
  void Click(const std::string& control) {
    auto* text = Widget<QPlainTextEdit>(control);
    QTest::mouseClick(text == nullptr ? Widget(control) : text->viewport(), Qt::LeftButton);
  }
};

TEST_F(MediaPaneTest, LiesOverTheListOfTheWordsDirectionAndShowsTheClueWhateverTheMedium) {
  for (const int direction : {1, 2}) {
    Show("tekst.txt", "abc");
    Show("film.avi", DataFile("film.avi"));
    glavni.smer = direction;
    Show("nema.xyz");
    EXPECT_FALSE(Plays());
    EXPECT_EQ(Widget("pic_media(4)")->geometry(), QRect(5, direction == 1 ? 42 : 268, 177, 210));
    EXPECT_EQ(frm_glavni->txt_media(0).Text(), "Ljubav");
    for (const char* content : {"pic_media(5)", "txt_media(1)", "mm_media"})
      EXPECT_FALSE(Widget(content)->isVisible()) << content;
  }
  const std::string wave = DataFile("tone.wav");
  std::string large = DataFile("film.avi");
  large.replace(large.find("strf") + 12, 2, "\x88\x13");  // 5000 pixels wide.
  const std::pair<const char*, std::string> refused[] = {{"zvuk.wav", wave.substr(0, 12)},
                                                         {"film.avi", wave},
                                                         {"film.avi", large},
                                                         {"muzika.mid", wave}};
  for (const auto& [name, bytes] : refused) {
    Show(name, bytes);
    EXPECT_FALSE(BarButton("play")->isEnabled() || Plays()) << name;
    Click("pic_media(4)");
    ExpectOpen(false, name);
  }
}

TEST_F(MediaPaneTest, CentresAPictureAndKeepsItWhenTheNextOneIsBroken) {
  for (const int width : {100, 300}) {
    QImage picture(width, 40, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.save(QString::fromStdString(folder() / "slika.bmp"));
    Show("slika.bmp");
    EXPECT_EQ(Widget("pic_media(5)")->geometry(), QRect(width == 100 ? 38 : -62, 50, width, 40));
    EXPECT_EQ(PixelOf("pic_media(5)", width - 1, 39), 0xFF0000U);
  }
  Show("slika.bmp", "BM and no more");
  EXPECT_EQ(Widget("pic_media(5)")->width(), 300);
  EXPECT_TRUE(Widget("pic_media(5)")->isVisible());
}

TEST_F(MediaPaneTest, ShowsTheLinesOfATextWithItsDigraphs) {
  const std::pair<const char*, const char*> texts[] = {
      {"", "\r\n"}, {"Qubav\r\n\r\n", "Ljubav\r\n\r\n"}, {"a\nb", "a\nb\r\n"}};
  for (const auto& [bytes, text] : texts) {
    Show("tekst.txt", bytes);
    EXPECT_EQ(frm_glavni->txt_media(1).Text(), text);
    EXPECT_EQ(Widget("txt_media(1)")->geometry(), QRect(7, 50, 162, 154));
    frm_glavni->txt_media(1).Left(157);
  }
  Show("tekst.txt", std::string(17 << 20, 'a'));
  EXPECT_EQ(frm_glavni->txt_media(1).Text().size(), 256U << 10);
  Show("nema.txt");
  EXPECT_EQ(frm_glavni->txt_media(1).Text(), "");
}

TEST_F(MediaPaneTest, ARightClickOnAClueShowsItsMediumAndAnyClickClosesWhatIsNoVideo) {
  const std::tuple<int, const char*, const char*, const char*, const char*> rows[] = {
      {1, "49: ", "camac.bmp", "pic_media(5)", "pic_media(5)"},
      {1, "28: ", "lipar.txt", "txt_media(1)", "txt_media(1)"},
      {0, "47: ", "ton.wav", "mm_media", "pic_media(4)"},
      {0, "40: ", "valcer.mid", "mm_media", "txt_media(0)"}};
  CopySample("velika.qvd");
  for (const auto& [list, clue, file, shown, clicked] : rows) {
    SCOPED_TRACE(file);
    auto& bar = frm_glavni->scr_tekst(list);
    for (bar.Value(1); !glavni.lista(1, 1, list + 1).starts_with(clue);) bar.Value(bar.Value() + 1);
    const std::string picture = "pic_tekst(" + std::to_string(list) + ")";
    ClickPicture(picture, 50, 7, 1);
    ExpectOpen(false, file);
    ClickPicture(picture, 50, 7, 2);
    ExpectOpen(true, file);
    PressKey(Qt::Key_Escape);
    ExpectOpen(false, file);
    PressKey(Qt::Key_Return, Qt::AltModifier);
    ExpectOpen(true, file);
    EXPECT_EQ(frm_glavni->txt_media(0).Text(), glavni.lista(1, 1, list + 1));
    EXPECT_TRUE(Widget(shown)->isVisible());
    EXPECT_EQ(Plays(), shown == std::string("mm_media"));
    Click(clicked);
    ExpectOpen(false, file);
    EXPECT_FALSE(Plays());
    EXPECT_EQ(FocusedControl(), "txt_rec(0)");
  }
}

TEST_F(MediaPaneTest, EachKindPlaysToItsEndAndAVideoIsClosedByAClickOnlyThen) {
  for (const char* sound : {"tone.wav", "melody.mid"}) {
    Show('\xE6' + std::string(sound), DataFile(sound));
    EXPECT_TRUE(Plays() && HasEnded()) << sound;
  }
  frm_glavni->pic_media(5).Width(300);  // As a picture may have left it.
  Show("film.avi", DataFile("film.avi"));
  Press("stop");
  EXPECT_TRUE(HasEnded()) << "stopped";
  Show("film.avi", DataFile("film.avi"));
  EXPECT_EQ(Widget("pic_media(5)")->geometry(), QRect(8, 50, 160, 120));
  frm_glavni->pic_media(5).Height(140);
  for (const char* control : {"pic_media(5)", "pic_media(4)", "txt_media(0)"}) Click(control);
  ExpectOpen(true, "film.avi");
  ASSERT_TRUE(HasEnded());
  // The last frame stays: upright, and in its own proportions between bars.
  const unsigned bar = PixelOf("pic_media(5)", 130, 135);
  const std::tuple<int, int, unsigned> spots[] = {
      {30, 5, bar}, {30, 15, 0xFF0000}, {130, 35, 0x00FF00}, {30, 125, 0x0000FF}};
  for (const auto& [x, y, colour] : spots) EXPECT_EQ(PixelOf("pic_media(5)", x, y), colour) << y;
  ExpectOpen(true, "film.avi");
  for (const char* button : {"play", "pause"}) Press(button);
  QTest::qWait(400);
  EXPECT_TRUE(Plays()) << "paused";
  Press("play");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Plays(); }, 10'000));
  Press("play");
  Click("pic_media(5)");
  ExpectOpen(false, "film.avi");
}

TEST_F(MediaPaneTest, WordLoadOptionsAndEndCloseARunningVideo) {
  for (const std::string way : {"pic_ukr", "cmd_ucit(0)", "cmd_glavni(5)", "cmd_glavni(2)"}) {
    SCOPED_TRACE(way);
    if (frm_opcije->Visible()) ClickButton("cmd_opcije(0)");
    Show("film.avi", DataFile("film.avi"));
    EXPECT_EQ(FocusedControl(), "pic_media(5)");
    if (way == "cmd_ucit(0)") ClickButton("cmd_glavni(0)");
    way == "pic_ukr" ? ClickCell(2, 1) : ClickButton(way);
    ExpectOpen(false, "film.avi");
  }
}

TEST_F(MediaPaneTest, TheEndOfTheProgramDuringTheOpeningLeavesNothing) {
  QTimer::singleShot(0, Widget("frm_glavni"), &QWidget::close);
  EXPECT_THROW(Show("tone.wav", DataFile("tone.wav")), toolkit::ProgramEnd);
  EXPECT_FALSE(std::filesystem::exists(folder() / "tone.wav"));
}

}  // namespace kalvon::testing
