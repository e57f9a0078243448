// SPDX-License-Identifier: MIT
#include "shell/browser_link.h"

#include <algorithm>
#include <cctype>

#include "files/run_time_error.h"
#include "shell/forms/frm_help.h"
#include "shell/toolkit/desktop/registry.h"
#include "shell/toolkit/windows/application.h"

namespace kalvon {

namespace {

constexpr std::uint32_t HKEY_CLASSES_ROOT = 0x80000000;
constexpr std::uint32_t access_mask = 0xF0063;
constexpr std::uint32_t plain_string = 1;
constexpr std::size_t longest_value = 256;  // Bytes, with the final NUL.

constexpr int manual_link = 2;
constexpr int most_retries = 6;

struct Browser {
  std::string command_line;
  std::string service;
  std::string topic;
};

std::string DefaultValue(const std::string& key_path) {
  std::uint32_t root = HKEY_CLASSES_ROOT;
  return citaj_registar(root, key_path, "");
}

Browser ReadBrowser() {
  return {DefaultValue(R"(http\shell\open\command)"),
          DefaultValue(R"(http\shell\open\ddeexec\Application)"),
          DefaultValue(R"(http\shell\open\ddeexec\Topic)")};
}

std::string UpperCase(std::string text) {
  std::ranges::transform(text, text.begin(), [](unsigned char character) {
    return static_cast<char>(std::toupper(character));
  });
  return text;
}

/// Runs one step of the conversation, again and again as long as no application answers: the first
/// time after the browser has been started. `retries` counts over all steps.
template <typename Step>
void Converse(const Browser& browser, int& retries, Step step) {
  for (;;) {
    const int failure = files::pass_over(step);
    if (failure == 0) return;
    if (failure != files::error::no_application_answered || retries == most_retries)
      throw files::RuntimeError(failure);
    if (retries == 0) toolkit::Shell(browser.command_line);
    ++retries;
  }
}

void ShowPage(const std::string& address) {
  const Browser browser = ReadBrowser();
  auto& link = frm_help->DDEText;
  int retries = 0;
  link.LinkTopic(UpperCase(browser.service) + "|" + browser.topic);
  link.LinkItem(address + ",,-1");
  Converse(browser, retries, [&] { link.LinkMode(manual_link); });
  Converse(browser, retries, [&] { link.LinkRequest(); });
}

}  // namespace

std::string citaj_registar(std::uint32_t& root, const std::string& key_path,
                           const std::string& value_name) {
  std::string result;
  std::uint32_t key = 0;
  if (toolkit::RegOpenKeyExA(root, key_path, access_mask, key) != 0) return result;
  std::uint32_t type = 0;
  std::string buffer(longest_value, '\0');
  std::uint32_t length = longest_value;
  if (toolkit::RegQueryValueExA(key, value_name, type, buffer, length) == 0 &&
      type == plain_string && length > 0)
    result = buffer.substr(0, length - 1);
  toolkit::RegCloseKey(key);
  return result;
}

void pokreni_browser(const std::string& address) {
  try {
    ShowPage(address);
  } catch (const files::RuntimeError&) {
    toolkit::MsgBox("Nije ostvarena veza sa Browser-om");
  }
}

}  // namespace kalvon
