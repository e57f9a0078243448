// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "files/run_time_error.h"
#include "shell/toolkit/desktop/browser_host.h"

namespace kalvon::testing {

/// A browser that does what a test writes down, and writes down what it is asked.
struct BrowserScript {
  std::map<std::string, toolkit::RegistryValue> registry = {
      {R"(http\shell\open\command)", {1, "citac --novi"}},
      {R"(http\shell\open\ddeexec\Application)", {1, "Citac"}},
      {R"(http\shell\open\ddeexec\Topic)", {1, "WWW_OpenURL"}}};
  /// The errors of the next calls, 0 for success; the last one stays.
  std::vector<int> errors = {0};
  /// The calls in their order: "connect TOPIC", "request ITEM", "start COMMAND".
  std::vector<std::string> calls = {};
};

class ScriptedBrowser : public toolkit::BrowserHost {
 public:
  explicit ScriptedBrowser(BrowserScript& script) : script_(script) {}

  std::optional<toolkit::RegistryValue> Read(const std::string& key_path) override {
    const auto found = script_.registry.find(key_path);
    if (found == script_.registry.end()) return std::nullopt;
    return found->second;
  }
  void Connect(const std::string& link_topic) override { Answer("connect " + link_topic); }
  void Request(const std::string& link_item) override { Answer("request " + link_item); }
  void Start(const std::string& command_line) override { Answer("start " + command_line); }

 private:
  void Answer(const std::string& call) {
    script_.calls.push_back(call);
    const int error = script_.errors.front();
    if (script_.errors.size() > 1) script_.errors.erase(script_.errors.begin());
    if (error != 0) throw files::RuntimeError(error);
  }

  BrowserScript& script_;
};

}  // namespace kalvon::testing
