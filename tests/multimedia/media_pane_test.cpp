// SPDX-License-Identifier: MIT
#include "multimedia/media_pane.h"

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolButton>

#include "shell/toolkit/events/program_end.h"
#include "support/bitmap_files.h"
#include "support/crossword_text.h"
#include "support/media_files.h"
#include "support/program_test.h"

namespace kalvon::testing {

namespace {

std::string Video(int frames) { return VideoFile(VideoCodec::raw24, false, frames); }

/// The pane, opened on files that lie in the program's folder as if a pack had given them.
class MediaPaneTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    WriteFile("proba.qvm", Qvm({"MIRA", "AKOV", "KITA"}));
    Load("proba.qvm");
  }

  void Show(const std::string& name, const std::string& bytes) {
    WriteFile(name, bytes);
    ShowAsItIs(name);
  }

  void ShowAsItIs(const std::string& name) {
    glavni.media_fajl = name;
    glavni.media_pitanje = "Qubav";
    prikazi_media(name.substr(name.size() - 3));
  }

  [[nodiscard]] bool IsOpen() const { return Widget("pic_media(4)")->isVisible(); }
  [[nodiscard]] bool FileIsThere(const std::string& name) const {
    return std::filesystem::exists(folder() / name);
  }
  [[nodiscard]] static bool PlayEnds() {
    return QTest::qWaitFor([] { return glavni.media_tip.empty(); }, 10'000);
  }
  [[nodiscard]] QToolButton* BarButton(const char* name) const {
    return Widget("mm_media")->findChild<QToolButton*>(QString::fromLatin1(name));
  }
  void ClickText(const std::string& control) const {
    QTest::mouseClick(Widget<QPlainTextEdit>(control)->viewport(), Qt::LeftButton, {}, {20, 10});
  }
};

TEST_F(MediaPaneTest, LiesOverTheListOfTheWordsDirectionWithTheTextOfTheClue) {
  for (const int direction : {1, 2}) {
    glavni.smer = direction;
    ShowAsItIs("nema.xyz");
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Widget("pic_media(4)")->geometry(), QRect(5, direction == 1 ? 42 : 268, 177, 210));
    EXPECT_EQ(frm_glavni->txt_media(0).Text(), "Ljubav");
    for (const char* content : {"pic_media(5)", "txt_media(1)", "mm_media"})
      EXPECT_FALSE(Widget(content)->isVisible()) << content;
  }
}

TEST_F(MediaPaneTest, CentresAPictureAndKeepsItWhenTheNextOneIsBroken) {
  Show("mala.bmp", BitmapFile({.width = 100, .height = 40}));
  EXPECT_EQ(Widget("pic_media(5)")->geometry(), QRect(38, 50, 100, 40));
  Show("velika.bmp", BitmapFile({.width = 300, .height = 30}));
  EXPECT_EQ(Widget("pic_media(5)")->geometry(), QRect(-62, 50, 300, 30));
  EXPECT_EQ(PixelOf("pic_media(5)", 299, 29), BitmapColour({.width = 300}, 299, 29));
  Show("losa.bmp", "BM and no more");
  EXPECT_EQ(Widget("pic_media(5)")->geometry(), QRect(-62, 50, 300, 30));
  EXPECT_TRUE(Widget("pic_media(5)")->isVisible());
}

TEST_F(MediaPaneTest, ShowsTheLinesOfATextWithItsDigraphs) {
  struct Row {
    const char* bytes;
    const char* text;
  };
  const Row rows[] = {{"", "\r\n"},
                      {"Qubav", "Ljubav\r\n"},
                      {"prvi\r\ndrugi\r\n", "prvi\r\ndrugi\r\n"},
                      {"\r\n\r\n", "\r\n\r\n"},
                      {"a\nb", "a\nb\r\n"}};
  for (const auto& [bytes, text] : rows) {
    Show("tekst.txt", bytes);
    EXPECT_EQ(frm_glavni->txt_media(1).Text(), text);
    EXPECT_EQ(Widget("txt_media(1)")->geometry(), QRect(7, 50, 162, 154));
    frm_glavni->txt_media(1).Left(157);
  }
  ShowAsItIs("nema.txt");
  EXPECT_EQ(frm_glavni->txt_media(1).Text(), "");
  EXPECT_TRUE(Widget("txt_media(1)")->isVisible());
}

TEST_F(MediaPaneTest, TextMovesItsCursorButNoKeyChangesIt) {
  Show("tekst.txt", "abc\r\n");
  auto* field = Widget<QPlainTextEdit>("txt_media(1)");
  frm_glavni->txt_media(1).SetFocus();
  PressKey(Qt::Key_Right);
  EXPECT_EQ(field->textCursor().position(), 1);
  QApplication::clipboard()->setText(QStringLiteral("xyz"));
  for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Return, Qt::Key_A})
    PressKey(key);
  for (const Qt::Key key : {Qt::Key_V, Qt::Key_Delete, Qt::Key_K, Qt::Key_X}) {
    field->selectAll();
    QTest::keyClick(field, key, Qt::ControlModifier);
  }
  QTest::keyClick(field, Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(frm_glavni->txt_media(1).Text(), "abc\r\n");
  EXPECT_EQ(field->toPlainText(), QStringLiteral("abc\n"));
}

TEST_F(MediaPaneTest, AnyClickClosesWhatIsNoVideoAndLeavesNothing) {
  struct Row {
    const char* name;
    std::string bytes;
    const char* clicked;
  };
  const Row rows[] = {{"slika.bmp", BitmapFile({}), "pic_media(4)"},
                      {"slika.bmp", BitmapFile({.width = 90, .height = 90}), "pic_media(5)"},
                      {"tekst.txt", "abc", "txt_media(1)"},
                      {"zvuk.wav", WaveFile(WaveFormat::pcm8, 1, 50), "pic_media(4)"},
                      {"muzika.mid", MidiFile(1), "txt_media(0)"}};
  for (const auto& [name, bytes, clicked] : rows) {
    SCOPED_TRACE(name);
    Show(name, bytes);
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(FileIsThere(name));
    if (std::string_view(clicked).starts_with("txt"))
      ClickText(clicked);
    else
      ClickPicture(clicked, 3, 3);
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(FileIsThere(name));
    EXPECT_FALSE(BarButton("stop")->isEnabled());
    EXPECT_EQ(FocusedControl(), "txt_rec(0)");
  }
}

TEST_F(MediaPaneTest, VideoIsClosedByAClickOnlyWhenItHasPlayed) {
  Show("film.avi", Video(12));
  EXPECT_EQ(Widget("pic_media(5)")->geometry(), QRect(8, 50, 160, 120));
  EXPECT_TRUE(Widget("mm_media")->isVisible());
  EXPECT_EQ(FocusedControl(), "pic_media(5)");
  QTest::qWait(400);
  ClickPicture("pic_media(5)", 80, 60);
  ClickPicture("pic_media(4)", 2, 2);
  ClickText("txt_media(0)");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(PixelOf("pic_media(5)", 40, 30), 0xFF0000U);
  EXPECT_EQ(PixelOf("pic_media(5)", 120, 90), 0xFFFFFFU);
  ASSERT_TRUE(PlayEnds());
  EXPECT_EQ(glavni.media_gotovo, 0);
  EXPECT_TRUE(FileIsThere("film.avi"));

  QTest::mouseClick(BarButton("play"), Qt::LeftButton);
  QTest::qWait(200);
  EXPECT_TRUE(BarButton("stop")->isEnabled()) << "plays again from the bar";
  ClickPicture("pic_media(5)", 80, 60);
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(FileIsThere("film.avi"));
}

TEST_F(MediaPaneTest, SoundRewindsAtItsEnd) {
  Show("zvuk.wav", WaveFile(WaveFormat::pcm16, 2, 2));
  EXPECT_TRUE(Widget("mm_media")->isVisible());
  EXPECT_FALSE(Widget("pic_media(5)")->isVisible());
  ASSERT_TRUE(PlayEnds());
  QTest::mouseClick(BarButton("play"), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !BarButton("stop")->isEnabled(); }, 5000));
  EXPECT_TRUE(IsOpen());
  EXPECT_TRUE(BarButton("play")->isEnabled());
}

TEST_F(MediaPaneTest, MediumThatCannotPlayStillShowsTheText) {
  for (const char* name : {"film.avi", "zvuk.wav", "muzika.mid"}) {
    Show(name, "nothing that plays");
    EXPECT_TRUE(IsOpen()) << name;
    EXPECT_EQ(frm_glavni->txt_media(0).Text(), "Ljubav") << name;
    EXPECT_FALSE(BarButton("play")->isEnabled()) << name;
  }
}

TEST_F(MediaPaneTest, WordOptionsAndEndCloseARunningVideo) {
  Show("film.avi", Video(100));
  ClickCell(1, 1);
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(FileIsThere("film.avi"));

  Show("film.avi", Video(100));
  ClickButton("cmd_glavni(5)");
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(FileIsThere("film.avi"));
  ClickButton("cmd_opcije(0)");

  Show("film.avi", Video(100));
  ClickButton("cmd_glavni(2)");
  EXPECT_TRUE(toolkit::Ended());
  EXPECT_FALSE(FileIsThere("film.avi"));
}

TEST_F(MediaPaneTest, VideoThatEndsBehindADialogWaitsForIt) {
  Show("film.avi", Video(5));
  ClickButton("cmd_glavni(0)");
  ASSERT_TRUE(PlayEnds());
  EXPECT_TRUE(IsOpen());
  ClickButton("cmd_ucit(1)");
  EXPECT_TRUE(IsOpen());
  Load("proba.qvm");
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(FileIsThere("film.avi"));
}

TEST_F(MediaPaneTest, EndOfTheProgramDuringTheOpeningLeavesNothing) {
  QTimer::singleShot(0, Widget("frm_glavni"), [this] { Widget("frm_glavni")->close(); });
  WriteFile("film.avi", Video(100));
  EXPECT_THROW(ShowAsItIs("film.avi"), toolkit::ProgramEnd);
  EXPECT_FALSE(FileIsThere("film.avi"));
}

TEST_F(MediaPaneTest, StartsAsEverWithWhatAKillLeftBehind) {
  Show("slika.bmp", BitmapFile({}));
  Restart();
  EXPECT_FALSE(IsOpen());
  zatvori_media();
  EXPECT_TRUE(FileIsThere("slika.bmp"));
  WriteFile("proba.qvd", "novo");
  Load("proba.qvm");
  Show("slika.bmp", BitmapFile({.width = 20, .height = 20}));
  ClickPicture("pic_media(4)", 3, 3);
  EXPECT_FALSE(FileIsThere("slika.bmp"));
}

TEST_F(MediaPaneTest, RightClickOnAClueCutsItsMediumOutAndALeftClickDoesNot) {
  const std::string picture = BitmapFile({.width = 60, .height = 50});
  const CrosswordText text{.rows = {"MIRA", "AKOV", "KITA"},
                           .clues = {{"A1", "/kit.bmp/Najveci sisar"}},
                           .media_table = "/kit.bmp/" + std::to_string(picture.size())};
  WriteFile("kit.qvm", Qvm(text));
  WriteFile("kit.qvd", picture);
  Load("kit.qvm");
  ClickPicture("pic_tekst(0)", 50, 7, 1);
  EXPECT_FALSE(IsOpen());
  ClickPicture("pic_tekst(0)", 50, 7, 2);
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(frm_glavni->txt_media(0).Text(), glavni.lista(1, 1, 1));
  EXPECT_EQ(Widget("pic_media(5)")->size(), QSize(60, 50));
  EXPECT_EQ(ReadFile("kit.bmp"), picture);
  ClickPicture("pic_media(5)", 5, 5);
  EXPECT_FALSE(FileIsThere("kit.bmp"));
}

}  // namespace

}  // namespace kalvon::testing
