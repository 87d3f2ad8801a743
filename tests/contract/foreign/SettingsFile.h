// A player's settings in a file of their own below the folder for temporary files.
#pragma once

class SettingsFile {
 public:
  // Writes settings that are on, have the save time 77 and, of the current scheme, these elements.
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
