#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace brennet {

// A new folder below the system's temporary one for the preference file of one test; it goes with
// all its content when the object does.
class PrefsFolder {
 public:
  PrefsFolder() : path_(std::filesystem::temp_directory_path() / uniqueName()) {
    std::filesystem::create_directory(path_);
  }
  ~PrefsFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  PrefsFolder(const PrefsFolder&) = delete;
  PrefsFolder& operator=(const PrefsFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }
  [[nodiscard]] std::filesystem::path file() const { return path_ / "War3Preferences.txt"; }

  // Makes `bytes` the content of file(). Returns whether that worked.
  [[nodiscard]] bool write(std::string_view bytes) const {
    return !platform::replaceFile(file(), bytes);
  }

  // The content of file(), "(unreadable)" where there is none.
  [[nodiscard]] std::string content() const {
    std::string bytes;
    return platform::readFile(file(), bytes) ? "(unreadable)" : bytes;
  }

  // The number of files and folders in the folder; temporary files would count.
  [[nodiscard]] std::ptrdiff_t entryCount() const {
    return std::distance(std::filesystem::directory_iterator(path_),
                         std::filesystem::directory_iterator());
  }

 private:
  static std::string uniqueName() {
    static std::atomic<int> counter{0};
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    return "brennet-gameside-" + std::to_string(now) + "-" + std::to_string(counter++);
  }

  std::filesystem::path path_;
};

}  // namespace brennet
