// SPDX-License-Identifier: MIT
#include "shell/file_opening.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "exchange/crossword_file.h"
#include "shell/file_saving.h"
#include "shell/remarks.h"
#include "shell/strip_texts.h"
#include "support/program_test.h"

namespace kalvon::testing {

class FileOpening : public ProgramTest {
 protected:
  FileOpening() { qputenv("HOME", home_.Host().c_str()); }
  ~FileOpening() override { qputenv("HOME", old_home_); }

  void Open(const std::string& name, const std::string& bytes) {
    WriteFile(name, bytes);
    otvori_fajl(folder() / name);
  }

  static std::string Xd(const std::string& rows, const std::string& language = "sr") {
    return "## Metadata\n\nTitle: Proba\nLanguage: " + language + "\n\n## Grid\n\n" + rows +
           "\n## Clues\n\nA1. Prvo\n";
  }

  [[nodiscard]] std::string Crosswords() const {
    std::string names;
    for (const char* name : {"mala.qvm", "mala-2.qvm", "mala-3.qvm"})
      if (std::filesystem::exists(home_.Host("Documents/Ukrstenice") + '/' + name))
        names += std::string(name) + ' ';
    return names;
  }

 private:
  ScratchFolder home_;
  QByteArray old_home_ = qgetenv("HOME");
};

TEST_F(FileOpening, MakesACrosswordOfAnotherProgramIntoOneOfThis) {
  Open("mala.xd", Xd("MIR\nA#A\nKIT\n"));
  EXPECT_EQ(NewsText(), "Učitana je ukrštenica mala.qvm. Primedbe (vidi meni): 3.");
  EXPECT_EQ(glavni.ukr_sirina, 3);
  Type("mir");
  PressKey(Qt::Key_Return);
  ClickButton("cmd_glavni(1)");
  otvori_fajl(folder() / "mala.xd");
  EXPECT_EQ(Crosswords(), "mala.qvm ") << "the same crossword again";
  EXPECT_EQ(glavni.slova.filled, 3) << "with its letters";
  Open("mala.xd", Xd("KIT\nO#A\nSAN\n"));
  EXPECT_EQ(Crosswords(), "mala.qvm mala-2.qvm ") << "another crossword of that name";
  ASSERT_EQ(glavni.nedavne.size(), 2U);
  EXPECT_TRUE(glavni.nedavne[0].ends_with("/mala-2.qvm"));
  Restart();
  EXPECT_EQ(glavni.nedavne.size(), 2U);
}

TEST_F(FileOpening, TellsWhatItCannotOpen) {
  Open("mala.xd", Xd("MIR\nA#A\nKIT\n"));
  Open("tekst.puz", "Dragi dnevniče,");
  EXPECT_EQ(NewsText(),
            "Nije učitano: tekst.puz – Sadržaj nije ukrštenica nijednog poznatog formata.");
  otvori_fajl(folder() / "nema.puz");
  EXPECT_NE(NewsText().find("Nije učitano: nema.puz – Datoteka se ne može pročitati"),
            std::string::npos);
  EXPECT_EQ(glavni.ukr_sirina, 3) << "the crossword stays";
  Open("grid.xd", Xd("CAT\nA#O\nPET\n", "en"));
  EXPECT_EQ(NewsText(), "Ukrštenica je na engleskom; otvara je program kalvon-en.");
  EXPECT_NE(browser().calls.back().find("/kalvon-en\" \"" + (folder() / "grid.xd").string()),
            std::string::npos);
}

TEST_F(FileOpening, TakesFilesThatAreDroppedOnABox) {
  WriteFile("mala.xd", Xd("MIR\nA#A\nKIT\n"));
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(QString::fromStdString(folder() / "mala.xd"))});
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(Widget("txt_rec(0)"), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(Widget("txt_rec(0)"), &drop);
  EXPECT_EQ(glavni.ukr_sirina, 3);
}

TEST_F(FileOpening, HasNothingToCheckWhereNoSolutionIsTold) {
  Open("mala.xd", Xd("M?R\nA#A\nKIT\n"));
  Type("mxr");
  PressKey(Qt::Key_Return);
  EXPECT_EQ(glavni.slova.filled, 3);
  PressKey(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(NewsText(),
            "Pogrešnih slova: 0. Polja bez rešenja, u kojima nema sa čim da se uporedi: 1.");
  PressKey(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(glavni.slova.filled, 8);
  EXPECT_FALSE(glavni.slova.Solved());
}

TEST_F(FileOpening, SavesInEachFormatWhatItReadsAgain) {
  Open("mala.xd", Xd("MIR\nA#A\nKIT\n"));
  Type("mix");
  PressKey(Qt::Key_Return);
  for (const char* name : {"a.ipuz", "a.puz", "a.jpz", "a.xd", "a.qvm"}) {
    sacuvaj_u(folder() / name);
    exchange::Remarks remarks;
    const exchange::HeadedCrossword read = exchange::ReadCrosswordFile(
        folder() / name, {.language = exchange::Language::serbian}, remarks);
    for (int y = 1; y <= 3; ++y)
      for (int x = 1; x <= 3; ++x)
        EXPECT_EQ(read.crossword.ukr_polja(x, y, 1), glavni.ukr_polja(x, y, 1)) << name;
  }
  sacuvaj_u(folder() / "a.pdf");
  EXPECT_EQ(NewsText(), "Snimljeno: a.pdf.");
  EXPECT_TRUE(ReadFile("a.pdf").starts_with("%PDF"));
  sacuvaj_u(folder() / "a.doc");
  EXPECT_EQ(NewsText(),
            "Nije snimljeno: a.doc – Može se upisati: qvm, ipuz, puz, jpz, xd, pdf, svg.");
  EXPECT_TRUE(glavni.izmenjeno) << "the crossword's own file has not been saved";
}

}  // namespace kalvon::testing
