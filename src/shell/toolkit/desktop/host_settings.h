// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace toolkit {

// What the user has chosen for himself, whatever the folder of the program: values by their names,
// in kalvon/kalvon.conf in his folder for configuration. Where it cannot be read or written, that
// is passed over.

/// The value that was saved, or `otherwise`.
int GetSetting(const std::string& name, int otherwise);
std::string GetSetting(const std::string& name, const std::string& otherwise);
void SaveSetting(const std::string& name, int value);
void SaveSetting(const std::string& name, const std::string& value);

}  // namespace toolkit
