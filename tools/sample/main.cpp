#include <charconv>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "sample/sample_contest.h"

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFaultFile = "guasti_piantati.txt";
constexpr std::string_view kUsage =
    "Usage: velmar-sample SEED STATIONS QSOS FOLDER\n"
    "Writes the logs of a sample contest into FOLDER, which is made if missing, and the list of\n"
    "the faults planted in them to guasti_piantati.txt beside FOLDER.\n"
    "  SEED      0 or more; the same numbers give the same files\n"
    "  STATIONS  how many send a log, 2 to 2000\n"
    "  QSOS      how many a log has on average, 1 to 800, fewer than STATIONS\n"
    "            (5 or more from 20 STATIONS on)\n"
    "Exit codes: 0 written, 1 not possible, 2 wrong arguments.\n";

enum ExitCode { kWritten = 0, kNotPossible = 1, kWrongArguments = 2 };

// Wrong words on the command line.
class UsageError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

template <typename Number>
Number ParseNumber(std::string_view name, std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) {
    throw UsageError(std::string(name) + " is no number in range: " + std::string(text));
  }
  return number;
}

void WriteFile(const fs::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) {
    throw std::runtime_error("cannot write " + path.string());
  }
}

// The folder as an absolute path without a separator at its end.
fs::path FolderPath(std::string_view argument) {
  if (argument.empty()) {
    throw UsageError("FOLDER is empty");
  }
  const fs::path path = fs::absolute(argument).lexically_normal();
  return path.has_filename() ? path : path.parent_path();
}

void Run(int argc, char** argv) {
  if (argc != 5) {
    throw UsageError("four arguments are needed");
  }
  velmar::SampleOptions options;
  options.seed = ParseNumber<std::uint64_t>("SEED", argv[1]);
  options.stations = ParseNumber<int>("STATIONS", argv[2]);
  options.qsos = ParseNumber<int>("QSOS", argv[3]);
  const fs::path folder = FolderPath(argv[4]);
  const velmar::SampleContest contest = velmar::MakeSampleContest(options);
  fs::create_directories(folder);
  for (const velmar::ReceivedLog& log : contest.logs) {
    WriteFile(folder / log.file_name, log.content);
  }
  const fs::path list = folder.parent_path() / kFaultFile;
  WriteFile(list, velmar::FaultList(contest.faults));
  std::cout << contest.logs.size() << " logs in " << folder.string() << ", "
            << contest.faults.size() << " faults in " << list.string() << "\n";
}

}  // namespace

int main(int argc, char** argv) {
  try {
    Run(argc, argv);
    return kWritten;
  } catch (const UsageError& error) {
    std::cerr << "velmar-sample: " << error.what() << "\n" << kUsage;
    return kWrongArguments;
  } catch (const std::invalid_argument& error) {
    std::cerr << "velmar-sample: " << error.what() << "\n" << kUsage;
    return kWrongArguments;
  } catch (const std::exception& error) {
    std::cerr << "velmar-sample: " << error.what() << "\n";
    return kNotPossible;
  }
}
