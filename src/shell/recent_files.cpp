// SPDX-License-Identifier: MIT
#include "shell/recent_files.h"

#include <algorithm>
#include <sstream>
#include <vector>

#include "document/crossword_state.h"
#include "shell/toolkit/desktop/host_settings.h"

namespace kalvon {

namespace {

constexpr const char* setting = "recent";
constexpr std::size_t most_files = 10;

}  // namespace

void ucitaj_nedavne() {
  glavni.nedavne.clear();
  std::istringstream lines(toolkit::GetSetting(setting, ""));
  for (std::string line; std::getline(lines, line) && glavni.nedavne.size() < most_files;)
    if (!line.empty()) glavni.nedavne.push_back(line);
}

void dodaj_nedavnu(const std::string& path) {
  // A path of two lines could not be told from two paths.
  if (path.find('\n') != std::string::npos) return;
  ucitaj_nedavne();
  std::erase(glavni.nedavne, path);
  glavni.nedavne.insert(glavni.nedavne.begin(), path);
  glavni.nedavne.resize(std::min(glavni.nedavne.size(), most_files));
  std::string lines;
  for (const std::string& file : glavni.nedavne) lines += file + '\n';
  toolkit::SaveSetting(setting, lines);
}

}  // namespace kalvon
