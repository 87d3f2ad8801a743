#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brennet::platform {

// A write over the content of a file, as it is kept until it has been finished.
struct TornWrite {
  std::string file;                // the file's name, in bytes of its own
  std::optional<std::string> old;  // what the file held; none where it is to be created
  std::string bytes;               // what it is to hold

  // What stands around both contents in the kept file, which is `start`, the old content, the new
  // one, `end`.
  struct Frame {
    std::string start;
    std::string end;
  };
  [[nodiscard]] static Frame frame(std::string_view file, const std::optional<std::string>& old,
                                   std::string_view bytes);
  // Out of a kept file; none where it was not finished itself.
  [[nodiscard]] static std::optional<TornWrite> parse(std::string_view kept);

  // The name of the file out of the first bytes of a kept file, as many as there are; none where
  // they are not those of one, or too few.
  [[nodiscard]] static std::optional<std::string> fileIn(std::string_view start);

  // Whether `content` can be what an unfinished write has left: at each place the old byte, the new
  // one, or the zero of a block that never reached the disk. Where it cannot, somebody else has
  // written the file since.
  [[nodiscard]] bool mayHaveLeft(std::string_view content) const;
};

}  // namespace brennet::platform
