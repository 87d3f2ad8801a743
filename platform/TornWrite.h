#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brennet::platform {

// A write over the content of a file, as it is kept until it is finished.
struct TornWrite {
  std::string file;                // the file's name, as bytes
  std::optional<std::string> old;  // what the file held; none if it is new
  std::string bytes;               // what it will hold

  // What encloses the two contents in the kept file, which consists of `start`, the old content,
  // the new content and `end`.
  struct Frame {
    std::string start;
    std::string end;
  };
  [[nodiscard]] static Frame frame(std::string_view file, const std::optional<std::string>& old,
                                   std::string_view bytes);
  // Reads a kept file; nothing if that was not finished itself.
  [[nodiscard]] static std::optional<TornWrite> parse(std::string_view kept);

  // The name of the file, from the first bytes of a kept file, as many as there are; nothing if
  // they are not those of one, or too few.
  [[nodiscard]] static std::optional<std::string> fileIn(std::string_view start);

  // Whether `content` can be what an unfinished write has left: at each place the old byte, the new
  // one, or the zero of a block that never reached the disk. If not, somebody else has written the
  // file since.
  [[nodiscard]] bool mayHaveLeft(std::string_view content) const;
};

}  // namespace brennet::platform
