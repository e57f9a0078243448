// SPDX-License-Identifier: MIT
#include <charconv>
#include <optional>
#include <span>
#include <string_view>

#include "shell/events.h"
#include "shell/forms/frm_glavni.h"
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

}  // namespace

int main(int argc, char** argv) {
  toolkit::Application application(argc, argv);
  kalvon::ChooseZoom(NamedZoom(std::span(argv, static_cast<std::size_t>(argc))));
  kalvon::BindEvents();
  kalvon::FrmGlavni& start = *kalvon::frm_glavni;
  if (!toolkit::Ended()) {
    kalvon::RestoreWindow();
    start.Show();
  }
  const int status = application.Run();
  kalvon::UnloadForms();
  return status;
}
