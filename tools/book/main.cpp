#include <algorithm>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "book/book_maker.h"
#include "model/call_book.h"
#include "platform/ansi.h"
#include "platform/disk_file_system.h"
#include "platform/error.h"

namespace {

constexpr std::string_view kUsage =
    "Usage: velmar-book OUT FOLDER...\n"
    "Makes the archive of calls and locators out of contests that are over, and writes it to OUT,\n"
    "which the program looks for as Varto_book.bin in its own folder.\n"
    "  FOLDER    the folder of the program, as it was left after a contest\n"
    "Exit codes: 0 written, 1 not possible, 2 wrong arguments.\n";

enum ExitCode { kWritten = 0, kNotPossible = 1, kWrongArguments = 2 };

/// A path as the program takes it: without slashes at its end.
std::string PathOf(std::string_view argument) {
  while (argument.size() > 1 && argument.ends_with('/')) {
    argument.remove_suffix(1);
  }
  return velmar::AnsiFromDiskName(argument);
}

void MakeBook(const std::string& out, const std::vector<std::string>& folders) {
  velmar::DiskFileSystem files;
  velmar::BookMaker maker;
  for (const std::string& folder : folders) {
    maker.Add(velmar::ReadFiledContest(files, velmar::Workspace(folder)));
  }
  const std::vector<std::string> records = maker.Records();
  files.WriteAll(out, velmar::EncodeCallBook(records));
  std::cout << records.size() << " records in " << velmar::DiskNameFromAnsi(out) << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  if (arguments.size() < 2 || std::ranges::count(arguments, std::string_view()) > 0) {
    std::cerr << kUsage;
    return kWrongArguments;
  }
  std::vector<std::string> paths(arguments.size());
  std::ranges::transform(arguments, paths.begin(), PathOf);
  try {
    MakeBook(paths.front(), {paths.begin() + 1, paths.end()});
    return kWritten;
  } catch (const velmar::BookError& error) {
    std::cerr << "velmar-book: " << error.what() << '\n';
  } catch (const velmar::RunTimeError& error) {
    std::cerr << "velmar-book: cannot write " << arguments[0] << " (run-time error "
              << static_cast<int>(error.number()) << ")\n";
  }
  return kNotPossible;
}
