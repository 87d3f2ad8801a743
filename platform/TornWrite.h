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

  // The form of the kept file, and back; none where the kept file was not finished itself.
  [[nodiscard]] std::string serialize() const;
  [[nodiscard]] static std::optional<TornWrite> parse(std::string_view kept);

  // Whether `content` can be what an unfinished write has left: at each place the old byte, the new
  // one, or the zero of a block that never reached the disk. Where it cannot, somebody else has
  // written the file since.
  [[nodiscard]] bool mayHaveLeft(std::string_view content) const;
};

}  // namespace brennet::platform
