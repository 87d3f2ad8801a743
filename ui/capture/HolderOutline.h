#pragma once

#include <vector>

class QWidget;

namespace brennet {

// Outlines the fields that have a key which was refused in another: the skin draws those
// differently whose property "holdsKey" is true.
class HolderOutline {
 public:
  // Outlines these fields, which outlive this object, and no others.
  void show(std::vector<QWidget*> fields);
  void clear() { show({}); }

 private:
  std::vector<QWidget*> outlined_;
};

}  // namespace brennet
