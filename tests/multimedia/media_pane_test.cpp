// SPDX-License-Identifier: MIT
#include "multimedia/media_pane.h"

#include <QImage>
#include <QPlainTextEdit>
#include <QToolButton>
#include <functional>

#include "shell/toolkit/windows/application.h"
#include "support/data_file.h"
#include "support/program_test.h"

namespace kalvon::testing {
namespace {

/// The pane, opened on files that lie in the program's folder as if a pack had given them.
class MediaPaneTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Load("velika.qvm");
  }

  void Show(const std::string& name, const std::string& bytes) {
    WriteFile(name, bytes);
    ShowAsItIs(name);
  }
  static void ShowAsItIs(const std::string& name) {
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
  void Click(const std::string& control) {
    auto* text = Widget<QPlainTextEdit>(control);
    QTest::mouseClick(text == nullptr ? Widget(control) : text->viewport(), Qt::LeftButton, {},
                      {3, 3});
  }
};

TEST_F(MediaPaneTest, LiesOverTheListOfTheWordsDirectionWithTheTextOfTheClue) {
  for (const int direction : {1, 2}) {
    glavni.smer = direction;
    ShowAsItIs("nema.xyz");
    EXPECT_TRUE(Widget("pic_media(4)")->isVisible());
    EXPECT_EQ(Widget("pic_media(4)")->geometry(), QRect(5, direction == 1 ? 42 : 268, 177, 210));
    EXPECT_EQ(frm_glavni->txt_media(0).Text(), "Ljubav");
    for (const char* content : {"pic_media(5)", "txt_media(1)", "mm_media"})
      EXPECT_FALSE(Widget(content)->isVisible()) << content;
  }
}

TEST_F(MediaPaneTest, CentresAPictureAndKeepsItWhenTheNextOneIsBroken) {
  for (const int width : {100, 300}) {
    QImage picture(width, 40, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.save(QString::fromStdString(folder() / "slika.bmp"));
    ShowAsItIs("slika.bmp");
    EXPECT_EQ(Widget("pic_media(5)")->geometry(), QRect(width == 100 ? 38 : -62, 50, width, 40));
    EXPECT_EQ(PixelOf("pic_media(5)", width - 1, 39), 0xFF0000U);
  }
  Show("slika.bmp", "BM and no more");
  EXPECT_EQ(Widget("pic_media(5)")->width(), 300);
  EXPECT_TRUE(Widget("pic_media(5)")->isVisible());
}

TEST_F(MediaPaneTest, ShowsTheLinesOfATextWithItsDigraphs) {
  const std::pair<const char*, const char*> texts[] = {{"", "\r\n"},
                                                       {"Qubav", "Ljubav\r\n"},
                                                       {"prvi\r\n\r\n", "prvi\r\n\r\n"},
                                                       {"a\nb", "a\nb\r\n"}};
  for (const auto& [bytes, text] : texts) {
    Show("tekst.txt", bytes);
    EXPECT_EQ(frm_glavni->txt_media(1).Text(), text);
    EXPECT_EQ(Widget("txt_media(1)")->geometry(), QRect(7, 50, 162, 154));
    frm_glavni->txt_media(1).Left(157);
  }
  ShowAsItIs("nema.txt");
  EXPECT_EQ(frm_glavni->txt_media(1).Text(), "");
  EXPECT_TRUE(Widget("txt_media(1)")->isVisible());
}

TEST_F(MediaPaneTest, AMediumThatCannotPlayStillShowsTheText) {
  for (const char* name : {"film.avi", "zvuk.wav", "muzika.mid"}) {
    Show(name, "nothing that plays");
    ExpectOpen(true, name);
    EXPECT_EQ(frm_glavni->txt_media(0).Text(), "Ljubav") << name;
    EXPECT_FALSE(BarButton("play")->isEnabled()) << name;
  }
}

TEST_F(MediaPaneTest, ARightClickOnAClueShowsItsMediumAndAnyClickClosesWhatIsNoVideo) {
  struct Row {
    int list;
    const char* clue;
    const char* file;
    const char* shown;
    const char* clicked;
  };
  const Row rows[] = {{1, "49: ", "camac.bmp", "pic_media(5)", "pic_media(5)"},
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
    EXPECT_EQ(frm_glavni->txt_media(0).Text(), glavni.lista(1, 1, list + 1));
    EXPECT_TRUE(Widget(shown)->isVisible());
    EXPECT_EQ(Plays(), shown == std::string("mm_media"));
    Click(clicked);
    ExpectOpen(false, file);
    EXPECT_FALSE(Plays());
    EXPECT_EQ(FocusedControl(), "txt_rec(0)");
  }
}

TEST_F(MediaPaneTest, AVideoIsClosedByAClickOnlyWhenItHasPlayed) {
  Show("film.avi", DataFile("film.avi"));
  EXPECT_EQ(Widget("pic_media(5)")->geometry(), QRect(8, 50, 160, 120));
  EXPECT_TRUE(Widget("mm_media")->isVisible());
  EXPECT_EQ(FocusedControl(), "pic_media(5)");
  for (const char* control : {"pic_media(5)", "pic_media(4)", "txt_media(0)"}) Click(control);
  ExpectOpen(true, "film.avi");
  ASSERT_TRUE(QTest::qWaitFor([] { return glavni.media_tip.empty(); }, 10'000));
  EXPECT_EQ(glavni.media_gotovo, 0);
  EXPECT_EQ(PixelOf("pic_media(5)", 40, 30), 0xFF0000U);
  EXPECT_EQ(PixelOf("pic_media(5)", 120, 90), 0xFFFFFFU);
  ExpectOpen(true, "film.avi");
  QTest::mouseClick(BarButton("play"), Qt::LeftButton);
  EXPECT_TRUE(Plays()) << "again";
  Click("pic_media(5)");
  ExpectOpen(false, "film.avi");
}

TEST_F(MediaPaneTest, WordOptionsAndEndCloseARunningVideo) {
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"word", [this] { ClickCell(2, 1); }},
      {"options", [this] { ClickButton("cmd_glavni(5)"); }},
      {"end", [this] { ClickButton("cmd_glavni(2)"); }}};
  for (const auto& [name, close] : ways) {
    SCOPED_TRACE(name);
    if (frm_opcije->Visible()) ClickButton("cmd_opcije(0)");
    Show("film.avi", DataFile("film.avi"));
    close();
    ExpectOpen(false, "film.avi");
  }
}

}  // namespace
}  // namespace kalvon::testing
