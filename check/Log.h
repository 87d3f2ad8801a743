#pragma once

#include <QFile>

#include <string>

namespace brennet::check {

// Where the lines go: to the end of the file that BRENNET_CHECK_LOG names, or to standard error and
// the debugger, if one listens.
class Log {
 public:
  Log();

  // Writes the line, which says where it is from, at once.
  void write(const std::string& line);

 private:
  QFile file_;
};

}  // namespace brennet::check
