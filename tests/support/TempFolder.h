#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace brennet::test {

// A new, empty folder for a test, removed with everything in it at the end.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }
  // The path of `name` below the folder.
  [[nodiscard]] std::filesystem::path operator/(std::string_view name) const {
    return path_ / name;
  }
  // The names of everything directly in the folder, sorted, one a line.
  [[nodiscard]] std::string listing() const;

 private:
  std::filesystem::path path_;
};

// The whole file; empty if it cannot be read.
std::string readBytes(const std::filesystem::path& path);
void writeBytes(const std::filesystem::path& path, std::string_view bytes);

}  // namespace brennet::test
