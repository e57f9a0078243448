// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace toolkit {

/// A value of the registry. Type 1 is a plain string.
struct RegistryValue {
  std::uint32_t type = 0;
  std::string data;
};

/// What stands behind the registry, links to other applications and Shell: the web browser of the
/// system. A test puts a script in its place.
class BrowserHost {
 public:
  virtual ~BrowserHost() = default;

  /// The default value of a key below HKEY_CLASSES_ROOT, nothing if there is none.
  virtual std::optional<RegistryValue> Read(const std::string& key_path) = 0;
  /// Begins a conversation about a "SERVICE|topic". Error 282 if no application answers.
  virtual void Connect(const std::string& link_topic) = 0;
  /// Asks for an item of that conversation. Error 285 if it is refused.
  virtual void Request(const std::string& link_item) = 0;
  /// Starts a program from a command line, with the quotes and field codes of a desktop entry, and
  /// does not wait. No shell stands in between. Error 53 if it cannot be started.
  virtual void Start(const std::string& command_line) = 0;
};

/// Keeps the environment of this moment for the programs that are started: what the program sets
/// later is for itself.
void RememberEnvironment();

/// The one in use: at first that of the desktop, whose default browser it knows by its desktop
/// entry.
BrowserHost& CurrentBrowserHost();

/// Puts another one in its place; none brings the desktop's back.
void UseBrowserHost(std::unique_ptr<BrowserHost> host);

}  // namespace toolkit
