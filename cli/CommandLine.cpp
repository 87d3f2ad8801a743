#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <functional>

#include "cli/Commands.h"
#include "model/HotkeyConfig.h"

namespace brennet::cli {
namespace {

constexpr char kAbout[] =
    "Looks at the files of Brennet: players' settings files, and the records that the game gets.\n"
    "Writes nothing that it is not asked to write.";

constexpr char kStatus[] =
    "Exit status: 0; 1 if faults were found; 2 for a file that cannot be used; 3 for a wrong\n"
    "command line. `brennet COMMAND --help` shows examples.";

// What the options of a command line say, and the command that they are for.
struct Request {
  std::vector<std::string> files;
  std::string file;
  std::string other;
  std::string output;
  int group = 0;
  bool write = false;
  bool isJson = false;
  std::function<ExitStatus(Answer)> command;
};

CLI::App& addCommand(CLI::App& app, Request& request, const char* name, const char* about,
                     const char* example, std::function<ExitStatus(Answer)> command) {
  CLI::App& added = *app.add_subcommand(name, about);
  added.footer(std::string("Example:\n  brennet ") + example);
  added.add_flag("--json", request.isJson, "answer in JSON, for programs");
  added.callback([&request, command = std::move(command)] { request.command = command; });
  return added;
}

CLI::Option& addFile(CLI::App& command, std::string& file, const char* name, const char* about) {
  return *command.add_option(name, file, about);
}

void addGroup(CLI::App& command, Request& request) {
  command
      .add_option("--scheme", request.group, "a setting group, 1 to 3, instead of the current one")
      ->check(CLI::Range(1, HotkeyConfig::kSchemes));
}

void addCheck(CLI::App& app, Request& request) {
  addCommand(app, request, "check",
             "What a load makes of settings files: each fault with its place", "check KeyInfo.xml",
             [&request](Answer answer) { return checkFiles(request.files, answer); })
      .add_option("FILE", request.files, "settings files")
      ->required();
}

void addShow(CLI::App& app, Request& request) {
  CLI::App& show = addCommand(
      app, request, "show", "The settings in words", "show KeyInfo.xml --scheme 2",
      [&request](Answer answer) { return showSettings(request.file, request.group, answer); });
  addFile(show, request.file, "FILE", "a settings file").required();
  addGroup(show, request);
}

void addDiff(CLI::App& app, Request& request) {
  CLI::App& diff = addCommand(
      app, request, "diff", "What differs, setting by setting", "diff old.xml new.xml",
      [&request](Answer answer) { return compareFiles(request.file, request.other, answer); });
  addFile(diff, request.file, "A", "a settings file or a record").required();
  addFile(diff, request.other, "B", "another one").required();
}

void addRecord(CLI::App& app, Request& request) {
  CLI::App& record = addCommand(
      app, request, "record", "The record that the game gets for a settings file",
      "record KeyInfo.xml --output record.bin",
      [&request](Answer answer) { return makeRecord(request.file, request.output, answer); });
  addFile(record, request.file, "FILE", "a settings file").required();
  record.add_option("-o,--output", request.output, "write the bytes to this file");
}

void addExplain(CLI::App& app, Request& request) {
  CLI::App& explain =
      addCommand(app, request, "explain", "Every byte of a record in words", "explain record.bin",
                 [&request](Answer answer) { return explainRecordFile(request.file, answer); });
  addFile(explain, request.file, "RECORD", "a file with a record").required();
}

void addApply(CLI::App& app, Request& request) {
  CLI::App& apply =
      addCommand(app, request, "apply", "What changes when a record is taken back, as a host would",
                 "apply KeyInfo.xml record.bin --write", [&request](Answer answer) {
                   return applyRecord(request.file, request.other, request.write, answer);
                 });
  addFile(apply, request.file, "FILE", "a settings file").required();
  addFile(apply, request.other, "RECORD", "a file with a record").required();
  apply.add_flag("--write", request.write, "change the settings file");
}

void addPrefs(CLI::App& app, Request& request) {
  CLI::App& prefs =
      addCommand(app, request, "prefs", "What a save would do to the game's preference file",
                 "prefs KeyInfo.xml War3Preferences.txt", [&request](Answer answer) {
                   return comparePreferences(request.file, request.other, answer);
                 });
  addFile(prefs, request.file, "FILE", "a settings file").required();
  addFile(prefs, request.other, "PREFS", "the game's file, instead of your own");
}

void addRepair(CLI::App& app, Request& request) {
  CLI::App& repair = addCommand(
      app, request, "repair",
      "A clean file from what can be read of a damaged one, which is kept beside it",
      "repair KeyInfo.xml", [&request](Answer answer) { return repairFile(request.file, answer); });
  addFile(repair, request.file, "FILE", "a damaged settings file").required();
}

void addKeys(CLI::App& app, Request& request) {
  CLI::App& keys = addCommand(
      app, request, "keys", "The names and codes of keys; with a file, who uses what",
      "keys KeyInfo.xml --scheme 2",
      [&request](Answer answer) { return listKeys(request.file, request.group, answer); });
  CLI::Option& file = addFile(keys, request.file, "FILE", "a settings file");
  addGroup(keys, request);
  keys.get_option("--scheme")->needs(&file);
}

constexpr void (*kCommands[])(CLI::App&, Request&) = {
    addCheck, addShow, addDiff, addRecord, addExplain, addApply, addPrefs, addRepair, addKeys};

}  // namespace

int runCommandLine(std::vector<std::string> arguments, std::ostream& out, std::ostream& err) {
  CLI::App app(kAbout, "brennet");
  app.footer(kStatus);
  app.set_version_flag("--version", "brennet " BRENNET_VERSION_TEXT);
  app.require_subcommand(1);
  Request request;
  for (const auto add : kCommands) add(app, request);
  std::ranges::reverse(arguments);  // as the library takes them
  try {
    app.parse(arguments);
    return request.command({out, request.isJson});
  } catch (const CLI::ParseError& error) {
    return app.exit(error, out, err) == 0 ? kDone : kBadUsage;
  } catch (const CommandFailure& failure) {
    err << "brennet: " << failure.message << '\n';
    return failure.status;
  }
}

}  // namespace brennet::cli
