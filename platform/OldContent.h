#pragma once

namespace brennet::platform {

// What becomes of the content of a file that is replaced.
enum class OldContent {
  Drop,
  // It stays beside the new one, as NAME.kept-YYYYMMDD-HHMMSS in local time. Three such files stay;
  // the oldest goes once the new content is in place. If the old content cannot be kept, the file
  // is replaced all the same; it is written in place only where the folder takes no new file at
  // all, or none with so long a name.
  Keep,
};

}  // namespace brennet::platform
