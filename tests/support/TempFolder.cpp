#include "tests/support/TempFolder.h"

#include <algorithm>
#include <atomic>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <vector>

namespace brennet::test {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
  static std::atomic<unsigned> number{0};
  static const unsigned process = std::random_device{}();
  path_ = fs::temp_directory_path() /
          ("brennet-test-" + std::to_string(process) + "-" + std::to_string(number++));
  if (!fs::create_directory(path_)) throw std::runtime_error("the test folder is there already");
}

TempFolder::~TempFolder() {
  std::error_code error;
  // A test may have taken away the rights to change it.
  fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, error);
  fs::remove_all(path_, error);
}

std::string TempFolder::listing() const {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(path_)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  std::string text;
  for (const std::string& name : names) text += name + "\n";
  return text;
}

std::string readBytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void writeBytes(const fs::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
}

}  // namespace brennet::test
