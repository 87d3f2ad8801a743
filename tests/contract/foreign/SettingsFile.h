// A player's settings in a new file below the folder for temporary files.
#pragma once

class SettingsFile {
 public:
  // Writes settings that are switched on, with the save time 77 and these elements in the current
  // scheme.
  explicit SettingsFile(const char* elements);
  ~SettingsFile();

  SettingsFile(const SettingsFile&) = delete;
  SettingsFile& operator=(const SettingsFile&) = delete;

  [[nodiscard]] const wchar_t* path() const { return path_; }

  // A number that changes with the file's bytes.
  [[nodiscard]] unsigned checksum() const;

 private:
  wchar_t path_[261];
};
