#pragma once

#include <string>
#include <string_view>

#include "tests/faults/ModelFileSystem.h"
#include "tests/support/PassingFileSystem.h"

namespace brennet::test {

// What happens to one call.
enum class Fault {
  None,
  Fails,         // with an error; the call does nothing
  FailsForGood,  // and so do all after it
  EndsBefore,    // the process ends before the call,
  EndsAfter,     // after it,
  EndsInside,    // or in its middle: half of a write, the first step of an exchange
  Short,         // a read of one byte, or half of a write
};

// Passes on all calls except the one that has the fault. After the process has ended, calls do
// nothing and fail.
class FaultyFileSystem final : public PassingFileSystem {
 public:
  explicit FaultyFileSystem(ModelFileSystem& system) : PassingFileSystem(system), system_(system) {}

  // The call with the number `call`, from 0 on, has the fault; `error` is the one it fails with.
  void plan(int call, Fault fault, Obstacle error = Obstacle::Other);
  // How many calls there have been since.
  [[nodiscard]] int calls() const { return calls_; }
  [[nodiscard]] bool hasEnded() const { return hasEnded_; }
  // The name of the call that had the fault; empty where it was not reached.
  [[nodiscard]] const std::string& faulty() const { return faulty_; }

  FileError open(const Path& path, OpenFor purpose, FileHandle& file, FileFacts& facts) override;
  FileError read(FileHandle file, std::uint64_t offset, char* bytes, std::size_t size,
                 std::size_t& count) override;
  FileError write(FileHandle file, std::uint64_t offset, std::string_view bytes,
                  std::size_t& count) override;
  FileError resize(FileHandle file, std::uint64_t size) override;
  FileError reserve(FileHandle file, std::uint64_t size) override;
  FileError flush(FileHandle file) override;
  FileError lock(FileHandle file, Sharing sharing) override;
  FileError close(FileHandle file) override;
  void copyRights(const Path& path, FileHandle file) override;
  FileFacts look(const Path& path) override;
  FileError move(const Path& from, const Path& to) override;
  FileError exchange(const Path& replacement, const Path& path, const Path& backup) override;
  FileError link(const Path& path, const Path& second) override;
  bool isSameFile(const Path& a, const Path& b) override;
  FileError remove(const Path& path) override;
  FileError removeKept(FileHandle file, const Path& path) override;
  FileError removeBackup(const Path& backup, const Path& path) override;
  FileError createFolder(const Path& path) override;
  FileError createPrivateFolder(const Path& path) override;
  FileError checkPrivateFolder(const Path& path) override;
  void removeFolder(const Path& path) override;
  FileError flushFolder(const Path& path) override;
  FileError list(const Path& folder, const std::function<void(const Path& name)>& visit) override;

 private:
  // The fault of the next call.
  Fault next(const char* name);
  // Makes the call, whose middle is `part`, in the way that `fault_` asks for.
  template <class Call>
  FileError passed(const char* name, Call call);
  template <class Call, class Part>
  FileError passed(const char* name, Call call, Part part);

  ModelFileSystem& system_;
  int planned_ = -1;
  Fault fault_ = Fault::None;
  Obstacle error_ = Obstacle::Other;
  int calls_ = 0;
  bool hasEnded_ = false;
  std::string faulty_;
};

}  // namespace brennet::test
