// Draws the pictures of the skin: brennet-draw-skin FOLDER

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "tools/skin/Pictures.h"
#include "tools/skin/Png.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: brennet-draw-skin FOLDER\n");
    return 2;
  }
  for (const brennet::skin::Picture& picture : brennet::skin::kPictures) {
    const auto path = std::filesystem::path(argv[1]) / picture.file;
    std::ofstream file(path, std::ios::binary);
    const std::string bytes = encodePng(picture.draw());
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.flush()) {
      std::fprintf(stderr, "cannot write %s\n", path.string().c_str());
      return 1;
    }
  }
  return 0;
}
