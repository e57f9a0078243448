// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace kalvon {

/// A string of the registry: the value `value_name` (empty for the default one) of a key. Empty if
/// there is none, if it is no plain string, or if it has more than 255 characters.
std::string citaj_registar(std::uint32_t& root, const std::string& key_path,
                           const std::string& value_name);

/// Shows a page in the web browser of the system. Starts the browser once if it does not answer; if
/// it still does not, a message says so.
void pokreni_browser(const std::string& address);

}  // namespace kalvon
