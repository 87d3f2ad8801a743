#include "platform/Leftovers.h"

#include <optional>

#include "platform/TemporaryNames.h"

namespace brennet::platform {
namespace {

constexpr std::uint64_t kOld = 3600;  // seconds

}  // namespace

void removeLeftovers(FileSystem& system, const Path& path) {
  using Name = std::basic_string_view<Path::value_type>;
  const Path folder = path.parent_path();
  const Path own = path.filename();
  const Name file = own.native();
  const FileError unseen = system.list(folder, [&](const Path& name) {
    const Name text = name.native();
    if (text.size() < file.size() || !system.isSameName(text.substr(0, file.size()), file)) return;
    const std::optional<unsigned long> process = temporaryProcess(text.substr(file.size()));
    if (!process) return;
    const Path leftover = folder / name;
    const FileFacts facts = system.look(leftover);
    const bool isLeft = facts.age >= kOld || !system.isRunning(*process);
    if (facts.kind == FileFacts::Kind::File && isLeft) static_cast<void>(system.remove(leftover));
  });
  static_cast<void>(unseen);  // what stays now goes another time
}

}  // namespace brennet::platform
