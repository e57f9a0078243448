// SPDX-License-Identifier: MIT
#include "crossword/settings_file.h"

#include <array>

#include "crossword/fields.h"
#include "files/file_rewrite.h"
#include "files/run_time_error.h"
#include "files/text_file.h"

namespace kalvon {
namespace {

constexpr auto temporary_name = "m_kalvon_ini.tmp";

/// The lines in the order of the file.
constexpr std::array lines = {&Settings::title, &Settings::folder, &Settings::script,
                              &Settings::layout};

}  // namespace

Settings ReadSettings(const std::string& folder) {
  Settings settings;
  files::pass_over([&] {
    files::TextReader file(folder + settings_name);
    for (const auto line : lines) settings.*line = file.Line();
  });
  return settings;
}

void WriteSettings(const std::string& folder, const Settings& settings) {
  files::FileRewrite file(folder + settings_name, temporary_name);
  for (const auto line : lines) file.PrintLine(settings.*line);
  file.Commit();
}

std::string ValueOf(const std::string& line) { return std::string(Behind(line, ':')); }

}  // namespace kalvon
