#include "measuring.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <utility>

#include "intake/rescoring.h"
#include "made_logs.h"

namespace velmar::bench {

namespace fs = std::filesystem;

namespace {

/// Does the work of a child process, and tells what it returned.
[[noreturn]] void Serve(const Work& work, int pipe) {
  try {
    const std::string told = work();
    for (std::size_t at = 0; at < told.size();) {
      const ssize_t put = write(pipe, told.data() + at, told.size() - at);
      if (put < 0) {
        throw std::runtime_error("the results could not be told");
      }
      at += static_cast<std::size_t>(put);
    }
    _exit(0);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
  } catch (...) {
    std::fprintf(stderr, "the program ended\n");
  }
  _exit(1);
}

std::string ReadToEnd(int pipe) {
  std::string text;
  std::array<char, 65536> buffer{};
  for (;;) {
    const ssize_t got = read(pipe, buffer.data(), buffer.size());
    if (got <= 0) {
      return text;
    }
    text.append(buffer.data(), static_cast<std::size_t>(got));
  }
}

/// A number of at least 1; nothing for any other text.
std::optional<std::size_t> NumberOf(std::string_view text) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole && number > 0 ? std::optional(number) : std::nullopt;
}

std::optional<Sizes> SizesOf(const std::vector<std::string_view>& arguments) {
  if (arguments.size() != 2 && arguments.size() != 3) {
    return std::nullopt;
  }
  const auto logs = NumberOf(arguments[0]);
  const auto qsos = NumberOf(arguments[1]);
  const auto runs = NumberOf(arguments.size() == 3 ? arguments[2] : "3");
  if (!logs || !qsos || !runs || *logs > kMadeStations || *qsos > kMostLogQsos) {
    return std::nullopt;
  }
  return Sizes{*logs, *qsos, *runs};
}

}  // namespace

TempFolder::TempFolder() : path_((fs::temp_directory_path() / "velmar bench XXXXXX").string()) {
  if (mkdtemp(path_.data()) == nullptr) {
    throw std::runtime_error("no temporary folder");
  }
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

ChildRun RunChild(const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  std::array<int, 2> pipe{};
  if (pipe2(pipe.data(), O_CLOEXEC) != 0) {
    throw std::runtime_error("no pipe to a child process");
  }
  const pid_t child = fork();
  if (child < 0) {
    throw std::runtime_error("no child process");
  }
  if (child == 0) {
    Serve(work, pipe[1]);
  }
  close(pipe[1]);
  std::string told = ReadToEnd(pipe[0]);
  close(pipe[0]);
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    throw std::runtime_error("what was to be measured failed");
  }
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  return {taken.count(), usage.ru_maxrss / 1024, std::move(told)};
}

ChildRun RunRested(const Work& work) {
  sync();
  return RunChild(work);
}

void BecomeCopy(const std::string& from, const std::string& to) {
  execl("/bin/cp", "cp", "-r", from.c_str(), to.c_str(), nullptr);
  throw std::runtime_error("cp could not be started");
}

double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

int RunBenchmark(const char* name, const std::vector<std::string_view>& arguments,
                 void (*measure)(const Sizes& sizes)) {
  const auto sizes = SizesOf(arguments);
  if (!sizes) {
    std::fprintf(stderr,
                 "%s LOGS QSOS [RUNS]\n"
                 "at most %zu logs of %zu QSOs; each is measured RUNS times (3)\n",
                 name, kMadeStations, kMostLogQsos);
    return 1;
  }
  try {
    measure(*sizes);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s: %s\n", name, failure.what());
    return 1;
  }
  return 0;
}

}  // namespace velmar::bench
