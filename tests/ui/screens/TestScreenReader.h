#pragma once

#include <QAccessible>

#include <utility>
#include <vector>

namespace brennet::test {

// Stands for a program that reads the screen to a player: as long as it lives, Qt tells it what
// happens to the controls, and nobody else. One at a time.
class TestScreenReader {
 public:
  TestScreenReader();
  ~TestScreenReader();
  TestScreenReader(const TestScreenReader&) = delete;
  TestScreenReader& operator=(const TestScreenReader&) = delete;

  // Whether it has been told that of the object.
  [[nodiscard]] static bool wasTold(const QObject& object, QAccessible::Event event);

 private:
  QAccessible::UpdateHandler before_ = nullptr;
  bool wasActive_ = false;
};

}  // namespace brennet::test
