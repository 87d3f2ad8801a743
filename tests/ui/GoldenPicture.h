#pragma once

#include <QApplication>
#include <QFont>
#include <QImage>

#include <string>

// Pictures that are compared with stored ones, pixel by pixel, on all systems.

namespace brennet::test {

// While it lives, the application draws with Bit Letters (tests/ui/fonts/bit-letters.py), which
// look the same everywhere.
class BitLetters {
 public:
  BitLetters();
  ~BitLetters();
  BitLetters(const BitLetters&) = delete;
  BitLetters& operator=(const BitLetters&) = delete;

 private:
  QFont before_ = QApplication::font();
  int id_;
};

// Fails if `actual` is not the picture `name` of the test data, which `make update` rewrites where
// the suite includes tests/support/Golden.h. Edges may be a little lighter or darker, as they
// depend on what the processor and the font library do. The picture is left in the folder
// "pictures" beside the test program if it differs.
void expectGoldenPicture(const std::string& name, const QImage& actual);

}  // namespace brennet::test
