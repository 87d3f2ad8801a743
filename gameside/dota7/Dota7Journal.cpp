#include "gameside/dota7/Dota7Journal.h"

#include "platform/Checksum.h"
#include "platform/Files.h"

namespace brennet {
namespace {

// One user has at most this many journals: those of open dialogs, and those of ended processes that
// could not be read.
constexpr char kNumbers[] = {'0', '1', '2', '3', '4', '5', '6', '7'};
constexpr std::uint64_t kLargestJournal = 16U << 20U;

std::string nameOf(std::string_view registry, char number) {
  std::string name = "dota7-";
  platform::appendDigits(platform::checksum(registry), name);
  return name.append(1, '-').append(1, number).append(".undo");
}

enum class Found { Nothing, Something, Unknown };

// The content of the journal that was taken.
Found read(const platform::PrivateFile& file, std::string_view registry, Dota7Undos& undos) {
  std::string bytes;
  const std::error_code error = file.read(bytes, kLargestJournal);
  if (error && !platform::isMissing(error) && !platform::isTooLarge(error)) return Found::Unknown;
  std::optional<Dota7Undos> found = parseDota7Undos(bytes, registry);
  if (!found) return Found::Nothing;
  undos = std::move(*found);
  return Found::Something;
}

}  // namespace

void Dota7Journal::drop() noexcept {
  if (file_.isTaken() && file_.clear()) file_.release();
}

Dota7Undos Dota7Journal::recover() {
  drop();
  const std::string registry = platform::registryIdentity();
  Dota7Undos undos;
  for (const char number : kNumbers) {
    if (file_.isTaken()) break;  // it could not be undone, or not be dropped
    const std::string name = nameOf(registry, number);
    if (!file_.isThere(name) || !file_.take(name)) continue;
    try {
      const Found found = read(file_, registry, undos);
      if (found == Found::Unknown) {
        leave();
      } else if (giveBack(undos)) {
        drop();
      }
    } catch (...) {
      leave();
      throw;
    }
  }
  return undos;
}

bool Dota7Journal::takeFree() {
  const std::string registry = platform::registryIdentity();
  std::string bytes;
  for (const char number : kNumbers) {
    const std::string name = nameOf(registry, number);
    if (file_.isThere(name) || !file_.take(name)) continue;
    // Another process may have had it since, and may have left something.
    if (platform::isMissing(file_.read(bytes, kLargestJournal))) return true;
    leave();
  }
  return false;
}

bool Dota7Journal::write(const Dota7Undos& undos) {
  if (!file_.isTaken() && !takeFree()) return false;
  return !file_.write(serialize(undos, platform::registryIdentity()));
}

}  // namespace brennet
