// SPDX-License-Identifier: MIT
#include "exchange/media.h"

#include <QFile>
#include <QTemporaryDir>
#include <optional>

#include "crossword/clue.h"
#include "crossword/direction.h"
#include "crossword/installments.h"
#include "crossword/media_table.h"
#include "exchange/crossword_file.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace kalvon::exchange {
namespace {

/// The installment in which a cell lies, from 1.
int InstallmentOf(const Crossword& crossword, GridCell cell) {
  return crossword.nast_smer == join::side_by_side ? (cell.x - 1) / crossword.nast_sirina + 1
                                                   : (cell.y - 1) / crossword.nast_visina + 1;
}

/// A name for these bytes that no other bytes have.
std::string FreeName(const HeadedCrossword& headed, const std::string& name,
                     const std::string& bytes) {
  const std::size_t dot = name.rfind('.');
  std::string free = name;
  for (int number = 2;; ++number) {
    const auto found = headed.media.find(free);
    if (found == headed.media.end() || found->second == bytes) return free;
    free = name.substr(0, dot) + "-" + std::to_string(number) + name.substr(dot);
  }
}

}  // namespace

std::vector<MediaClue> MediaClues(const Crossword& crossword) {
  std::vector<MediaClue> clues;
  for (int y = 1; y <= crossword.ukr_visina; ++y) {
    for (int x = 1; x <= crossword.ukr_sirina; ++x) {
      const std::string& attributes = crossword.ukr_polja(x, y, 2);
      for (const int direction : {direction::across, direction::down}) {
        if (!StartsWord(attributes, direction)) continue;
        const std::string_view medium = ReadClue(attributes, direction).media;
        if (!medium.empty()) clues.push_back({{x, y}, direction, std::string(medium)});
      }
    }
  }
  return clues;
}

void GiveMedium(Crossword& crossword, const MediaClue& clue, const std::string& name) {
  std::string& attributes = crossword.ukr_polja.Mutable(clue.cell.x, clue.cell.y, 2);
  const std::string_view medium = ReadClue(attributes, clue.direction).media;
  const auto place = static_cast<std::size_t>(medium.data() - attributes.data());
  if (name.empty())
    attributes.erase(place - 1, medium.size() + 2);
  else
    attributes.replace(place, medium.size(), name);
}

std::optional<PackedMedium> MediumInPack(const Crossword& crossword, const MediaClue& clue) {
  const int installment = InstallmentOf(crossword, clue.cell);
  const MediaKind* const kind = KindOfMedium(clue.medium);
  const auto entry = FindInTable(crossword.media_sadrzaj(installment), clue.medium);
  if (kind == nullptr || !entry || entry->size > kind->largest) return std::nullopt;
  PackedMedium medium{.size = entry->size, .bytes = ""};
  const QTemporaryDir folder;
  const QString copy = folder.filePath(QStringLiteral("medium"));
  files::pass_over([&] {
    const std::string pack = WithExtension(crossword.nast_staza(installment), "qvd");
    CutOut(pack, *entry, files::LogicPath(copy.toStdString()));
  });
  QFile file(copy);
  if (file.open(QIODevice::ReadOnly)) medium.bytes = file.readAll().toStdString();
  return medium;
}

void ReadMedia(HeadedCrossword& headed, Remarks& remarks) {
  for (const MediaClue& clue : MediaClues(headed.crossword)) {
    auto medium = MediumInPack(headed.crossword, clue);
    if (!medium || medium->bytes.empty()) {
      remarks.Add({.matter = Matter::medium_missing, .cell = clue.cell, .detail = clue.medium});
      GiveMedium(headed.crossword, clue, "");
      continue;
    }
    const std::string name = FreeName(headed, clue.medium, medium->bytes);
    GiveMedium(headed.crossword, clue, name);
    headed.media.insert_or_assign(name, std::move(medium->bytes));
  }
}

}  // namespace kalvon::exchange
