#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <functional>

#include "cli/Commands.h"

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
  std::string output;
  int group = 0;
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

void addCommands(CLI::App& app, Request& request) {
  addCommand(app, request, "check",
             "What a load makes of settings files: each fault with its place", "check KeyInfo.xml",
             [&request](Answer answer) { return checkFiles(request.files, answer); })
      .add_option("FILE", request.files, "settings files")
      ->required();

  CLI::App& record = addCommand(
      app, request, "record", "The record that the game gets for a settings file",
      "record KeyInfo.xml --output record.bin",
      [&request](Answer answer) { return makeRecord(request.file, request.output, answer); });
  record.add_option("FILE", request.file, "a settings file")->required();
  record.add_option("-o,--output", request.output, "write the bytes to this file");

  addCommand(app, request, "explain", "Every byte of a record in words", "explain record.bin",
             [&request](Answer answer) { return explainRecordFile(request.file, answer); })
      .add_option("RECORD", request.file, "a file with a record")
      ->required();

  CLI::App& keys = addCommand(
      app, request, "keys", "The names and codes of keys; with a file, who uses what",
      "keys KeyInfo.xml --scheme 2",
      [&request](Answer answer) { return listKeys(request.file, request.group, answer); });
  CLI::Option* const file = keys.add_option("FILE", request.file, "a settings file");
  keys.add_option("--scheme", request.group, "a setting group, 1 to 3, instead of the current one")
      ->check(CLI::Range(1, 3))
      ->needs(file);
}

}  // namespace

int runCommandLine(std::vector<std::string> arguments, std::ostream& out, std::ostream& err) {
  CLI::App app(kAbout, "brennet");
  app.footer(kStatus);
  app.set_version_flag("--version", "brennet " BRENNET_VERSION_TEXT);
  app.require_subcommand(1);
  Request request;
  addCommands(app, request);
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
