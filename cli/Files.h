#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "model/HotkeyConfig.h"

namespace brennet::cli {

// The content of the file `name` (UTF-8), as it is: nothing is put right, and nothing is waited
// for. Throws CommandFailure.
[[nodiscard]] std::string readBytes(const std::string& name);

// The same for a file that messages call `name`.
[[nodiscard]] std::string readBytes(const std::filesystem::path& path, const std::string& name);

// Makes `bytes` the content of the file, whole or not at all. Throws CommandFailure.
void writeBytes(const std::string& name, std::string_view bytes);

// Writes `bytes` to a new file beside the file `name` and returns its name, which ends in
// ".damaged", with a number where there is such a file. Throws CommandFailure.
[[nodiscard]] std::string putAside(const std::string& name, std::string_view bytes);

// The bytes of a settings file with these settings. Throws CommandFailure if the encoding of such
// files lacks some of the characters.
[[nodiscard]] std::string settingsBytes(const HotkeyConfig& config, std::uint32_t saveTime);

// Whether the content is that of a record, which begins with its size.
[[nodiscard]] bool isRecord(std::string_view bytes);

// The record in the file, without what is behind it. Throws CommandFailure.
[[nodiscard]] std::string readRecord(const std::string& name);

// The settings that a load finds in the file. Throws CommandFailure.
[[nodiscard]] HotkeyConfig readSettings(const std::string& name);

}  // namespace brennet::cli
