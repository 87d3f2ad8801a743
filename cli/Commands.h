#pragma once

#include <iosfwd>
#include <string>
#include <vector>

// What `brennet` does, a function for each command. They write their answer to `out`, for people
// or, with `json`, for programs; all texts are UTF-8. They throw CommandFailure where they cannot
// do what they are asked to, and std::bad_alloc.
namespace brennet::cli {

enum ExitStatus {
  kDone = 0,
  kFound = 1,        // what was looked at has faults
  kNotLoadable = 2,  // a file is no settings file or no record, or cannot be read or written
  kBadUsage = 3,
};

struct CommandFailure {
  std::string message;
  ExitStatus status = kNotLoadable;
};

struct Answer {
  std::ostream& out;
  bool isJson = false;
};

// The findings in each of the files.
ExitStatus checkFiles(const std::vector<std::string>& files, Answer answer);

// The settings of a file in words: those of its current setting group, or of group `group` (1 to 3)
// if that is not 0.
ExitStatus showSettings(const std::string& file, int group, Answer answer);

// What differs between two settings files, or between two records. kFound if anything does.
ExitStatus compareFiles(const std::string& before, const std::string& after, Answer answer);

// The record that a settings file gives: its bytes, written to the file `output`, or shown if that
// is empty.
ExitStatus makeRecord(const std::string& file, const std::string& output, Answer answer);

// Every byte of the record in the file.
ExitStatus explainRecordFile(const std::string& file, Answer answer);

// What changes in the settings file when a host takes the record back. Writes the file only with
// `write`. kFound if the record would change nothing.
ExitStatus applyRecord(const std::string& file, const std::string& record, bool write,
                       Answer answer);

// What a save of the settings file would do to the game's preference file: the one of that name, or
// the user's own if the name is empty. kFound if anything changes. Writes nothing.
ExitStatus comparePreferences(const std::string& file, const std::string& preferences,
                              Answer answer);

// Puts a file that a load accepts in the place of a damaged one, with what can be read of it, and
// keeps the damaged one beside it. A file without faults stays as it is.
ExitStatus repairFile(const std::string& file, Answer answer);

// The names and codes of keys; with a settings file, who uses what in its current setting group, or
// in group `group` (1 to 3) if that is not 0.
ExitStatus listKeys(const std::string& file, int group, Answer answer);

}  // namespace brennet::cli
