// SPDX-License-Identifier: MIT
#include "printing/printing.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QRegularExpression>
#include <random>

#include "crossword/cell.h"
#include "crossword/clue.h"
#include "crossword/direction.h"
#include "exchange/storing.h"
#include "files/run_time_error.h"
#include "printing/layout.h"

namespace kalvon::printing {
namespace {

constexpr double tolerance = 1.0;

/// A crossword of random letters, the digraphs among them, whose clues are numbers in words.
Sheet RandomSheet(int width, int height) {
  const char* const letters[] = {"A", "B", "Č", "LJ", "NJ", "DŽ", "M", "Š"};
  std::mt19937 random(static_cast<unsigned>(width * height));
  exchange::Puzzle puzzle = exchange::EmptyPuzzle(width, height);
  for (exchange::PuzzleCell& cell : puzzle.cells) {
    cell = {.solution = letters[random() % 8], .entry = random() % 2 == 0 ? "A" : ""};
    if (random() % 5 == 0) cell = {.kind = exchange::CellKind::block};
  }
  for (const int direction : {direction::across, direction::down}) {
    for (const exchange::WordStart& start : exchange::WordStarts(puzzle)) {
      if (!BelongsTo(start.kind, direction)) continue;
      std::string text = "Red";
      for (auto words = random() % 12; words > 0; --words)
        text += ' ' + std::to_string(random() % 100000);
      puzzle.clues.push_back({.direction = direction, .cell = start.cell, .text = text});
    }
  }
  exchange::Remarks remarks;
  return {.crossword = exchange::Store(puzzle, {exchange::Language::serbian}, remarks).crossword,
          .title = "Šesnaest ljudi",
          .author = "Đorđe",
          .description = "",
          .writing = {.latin = width != 21}};
}

std::string CluesOf(const Sheet& sheet) {
  std::string texts;
  for (const int direction : {direction::across, direction::down}) {
    for (int n = 1; n <= sheet.crossword.broj_pitanja; ++n) {
      if (!BelongsTo(sheet.crossword.pitanja(n, 1), direction)) continue;
      const Clue clue = ReadClue(sheet.crossword.ukr_polja(sheet.crossword.pitanja(n, 2),
                                                           sheet.crossword.pitanja(n, 3), 2),
                                 direction);
      texts += std::to_string(n) + ' ' + std::string(clue.text) + ' ';
    }
  }
  return texts;
}

/// The printed clues one after the other, as far as they are no grid. Expects them in readable
/// letters, and each heading above a clue.
std::string PrintedClues(const Layout& layout, const QString& question) {
  QString texts;
  for (const Page& page : layout.pages) {
    bool in_clues = false;
    const Text* heading = nullptr;
    for (const Text& text : page.upright.texts) {
      const bool is_heading =
          text.text.startsWith(u"Vodoravno") || text.text.startsWith(u"Uspravno") ||
          text.text.startsWith(u"Водоравно") || text.text.startsWith(u"Усправно");
      static const QRegularExpression footer(QStringLiteral("^[0-9]+ / [0-9]+$"));
      if (footer.match(text.text).hasMatch()) continue;
      if (heading != nullptr) {
        EXPECT_TRUE(text.place.top() > heading->place.top() &&
                    text.place.left() < heading->place.left() + 30)
            << "a heading stands alone";
      }
      heading = is_heading ? &text : nullptr;
      in_clues |= is_heading || text.text.startsWith(question) || !texts.isEmpty();
      if (!in_clues || is_heading) continue;
      EXPECT_GE(text.size, 7.999);
      texts += text.text + u' ';
    }
  }
  return texts.toStdString();
}

void ExpectInside(const Drawing& drawing, const QRectF& room) {
  for (const Box& box : drawing.boxes) EXPECT_TRUE(room.contains(box.place));
  for (const Text& text : drawing.texts)
    EXPECT_TRUE(room.contains(text.place)) << text.text.toStdString();
  for (const Stroke& stroke : drawing.strokes)
    EXPECT_TRUE(room.contains(stroke.line.p1()) && room.contains(stroke.line.p2()));
  for (const Sign& sign : drawing.signs) EXPECT_TRUE(room.contains(sign.place));
}

void ExpectWhole(Sheet sheet) {
  for (const Contents contents : {Contents::empty, Contents::users_letters, Contents::solution}) {
    for (const Paper& paper : {a4, letter}) {
      sheet.contents = contents;
      const Printout printout(sheet, paper);
      const Layout& layout = printout.Laid();
      const double margin = paper.margin - tolerance;
      const QRectF room(margin, margin, paper.width - 2 * margin, paper.height - 2 * margin);
      std::size_t solved = 0;
      for (const Page& page : layout.pages) {
        ExpectInside(page.upright, room);
        ExpectInside(page.turned, room);
        for (const Text& text : page.turned.texts)
          if (text.text.size() <= 2 && text.bold) ++solved;
      }
      std::string printed = PrintedClues(layout, QStringLiteral("Red"));
      if (!sheet.writing.latin) continue;
      EXPECT_NE(printed.find(CluesOf(sheet)), std::string::npos) << printed;
      std::size_t cells = 0;
      for (int y = 1; y <= sheet.crossword.ukr_visina; ++y)
        for (int x = 1; x <= sheet.crossword.ukr_sirina; ++x)
          cells += IsLetterCell(sheet.crossword.ukr_polja(x, y, 1)) ? 1U : 0U;
      EXPECT_EQ(solved, contents == Contents::solution ? cells : 0);
    }
  }
}

TEST(Printout, HasEveryClueOnceAndNothingBesideThePaper) {
  for (const auto& [width, height] :
       {std::pair(4, 4), std::pair(15, 15), std::pair(21, 21), std::pair(33, 9), std::pair(40, 30),
        std::pair(3, 200), std::pair(199, 2)}) {
    SCOPED_TRACE(std::to_string(width) + " x " + std::to_string(height));
    ExpectWhole(RandomSheet(width, height));
  }
}

TEST(Printout, GivesFilesOfEachKind) {
  const Printout printout(RandomSheet(15, 15));
  EXPECT_EQ(printout.Pages(), 1);
  const std::string pdf = printout.Pdf();
  EXPECT_TRUE(pdf.starts_with("%PDF"));
  EXPECT_NE(pdf.find("/FontFile2"), std::string::npos) << "the fonts are embedded";
  EXPECT_NE(printout.Svg().find("Šesnaest ljudi"), std::string::npos);
  const QImage picture = QImage::fromData(QByteArray::fromStdString(printout.Png(300)));
  EXPECT_EQ(picture.width(), 300);
  EXPECT_NEAR(picture.height(), 300 * a4.height / a4.width, 1);
  EXPECT_THROW(static_cast<void>(printout.Png(100'000)), files::RuntimeError);
  EXPECT_THROW(Printout(RandomSheet(4, 4), {.width = 250, .height = 300, .margin = 40}),
               files::RuntimeError);
}

}  // namespace
}  // namespace kalvon::printing
