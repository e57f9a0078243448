// SPDX-License-Identifier: MIT
#include <charconv>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "shell/events.h"
#include "shell/file_opening.h"
#include "shell/forms/frm_glavni.h"
#include "shell/toolkit/events/event.h"
#include "shell/toolkit/events/program_end.h"
#include "shell/toolkit/windows/application.h"
#include "shell/zoom.h"

namespace {

/// The number that the text begins with, or 0.
int LeadingNumber(std::string_view text) {
  int number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// The percentage of "--zoom PERCENT".
std::optional<int> NamedZoom(std::span<char*> arguments) {
  for (std::size_t i = 0; i + 1 < arguments.size(); ++i)
    if (std::string_view(arguments[i]) == "--zoom") return LeadingNumber(arguments[i + 1]);
  return std::nullopt;
}

/// The file that the command line names, by its whole path; empty for none.
std::string NamedFile(std::span<char*> arguments) {
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    const std::string_view word = arguments[i];
    if (word == "--zoom")
      ++i;
    else if (!word.starts_with("--"))
      return std::filesystem::absolute(word).string();
  }
  return "";
}

}  // namespace

int main(int argc, char** argv) {
  toolkit::Application application(argc, argv);
  const std::span arguments(argv, static_cast<std::size_t>(argc));
  kalvon::ChooseZoom(NamedZoom(arguments));
  kalvon::BindEvents();
  kalvon::FrmGlavni& start = *kalvon::frm_glavni;
  if (!toolkit::Ended()) {
    kalvon::RestoreWindow();
    start.Show();
    if (const std::string file = NamedFile(arguments); !file.empty())
      toolkit::RunHandler([&] { kalvon::otvori_fajl(file); });
  }
  const int status = application.Run();
  kalvon::UnloadForms();
  return status;
}
