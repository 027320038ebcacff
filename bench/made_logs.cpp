#include "made_logs.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

#include "model/lines.h"
#include "model/text.h"
#include "platform/disk_file_system.h"

namespace velmar::bench {

namespace {

constexpr std::array<std::string_view, 5> kPrefixes = {"IK", "IZ", "IW", "IU", "IN"};
constexpr std::size_t kLetters = 26;
static_assert(kMadeStations == kPrefixes.size() * 10 * kLetters * kLetters);

/// Has no divisor in common with the number of stations, so that a log meets none of them twice.
constexpr std::size_t kStep = 7;

constexpr std::size_t kClaimed = 99;  ///< km, of each QSO
constexpr std::size_t kContestStart = 1000;
constexpr std::size_t kContestMinutes = 60;

/// A number that looks drawn by chance, of which every bit hangs on every bit of `number`.
std::uint64_t Scrambled(std::uint64_t number) {
  number += 0x9E3779B97F4A7C15U;
  number = (number ^ (number >> 30U)) * 0xBF58476D1CE4E5B9U;
  number = (number ^ (number >> 27U)) * 0x94D049BB133111EBU;
  return number ^ (number >> 31U);
}

/// The last digit that is left of `number`, in a system of `base` digits, and takes it away.
std::size_t Cut(std::uint64_t& number, std::size_t base) {
  const std::size_t digit = number % base;
  number /= base;
  return digit;
}

char Letter(std::size_t number) {
  return static_cast<char>('A' + number);
}

std::string ThreeDigits(std::size_t number) {
  const std::string digits = std::to_string(number);
  return digits.size() < 3 ? std::string(3 - digits.size(), '0') + digits : digits;
}

/// The station of a log's QSO.
std::size_t Worked(std::size_t station, std::size_t number) {
  return (station + kStep * number) % kMadeStations;
}

/// All rows that are read by their number.
std::vector<std::string> MadeHeader(std::size_t station, std::size_t qsos) {
  const std::string call = MadeCall(station);
  const std::size_t dx = Worked(station, 1);
  return {"[REG1TEST;1]",
          "TName=Contest Velmar",
          "TDate=20250119;20250119",
          Join("PCall=", call),
          Join("PWWLo=", MadeLocator(station)),
          "PExch=",
          "PAdr1=",
          "PAdr2=",
          "PSect=2IT",
          "PBand=144 MHz",
          "PClub=",
          "RName=",
          Join("RCall=", call),
          "RAdr1=",
          "RAdr2=",
          "RPoCo=",
          "RCity=",
          "RCoun=",
          "RPhon=",
          "RHBBS=",
          "MOpe1=",
          "MOpe2=",
          "STXEq=",
          "SPowe=50",
          "SRXEq=",
          "SAnte=9 el",
          "SAntH=10;350",
          Join("CQSOs=", qsos, ";1"),
          Join("CQSOP=", kClaimed * qsos),
          "CWWLs=0;0;1",
          "CWWLB=0",
          "CExcs=0;0;1",
          "CExcB=0",
          "CDXCs=0;0;1",
          "CDXCB=0",
          Join("CToSc=", kClaimed * qsos),
          Join("CODXC=", MadeCall(dx), ";", MadeLocator(dx), ";", kClaimed)};
}

std::string MadeQso(std::size_t station, std::size_t number) {
  return Join("250119;", kContestStart + number % kContestMinutes, ";", MadeCall(station), ";1;59;",
              ThreeDigits(number), ";59;", ThreeDigits(1 + Scrambled(station) % 400), ";;",
              MadeLocator(station), ";", kClaimed, ";;N;;");
}

}  // namespace

std::string MadeCall(std::size_t station) {
  std::uint64_t rest = station;
  std::string call = "IK0QAA";
  call[5] = Letter(Cut(rest, kLetters));
  call[4] = Letter(Cut(rest, kLetters));
  call[2] = static_cast<char>('0' + Cut(rest, 10));
  return call.replace(0, 2, kPrefixes[rest % kPrefixes.size()]);
}

std::string MadeLocator(std::size_t station) {
  std::uint64_t rest = Scrambled(station);
  std::string locator = "JN00AA";
  locator[1] = Cut(rest, 2) == 0 ? 'M' : 'N';
  locator[2] = static_cast<char>('0' + Cut(rest, 10));
  locator[3] = static_cast<char>('0' + Cut(rest, 10));
  locator[4] = Letter(Cut(rest, 24));
  locator[5] = Letter(Cut(rest, 24));
  return locator;
}

std::string MadeLog(std::size_t station, std::size_t qsos) {
  std::string log;
  const auto add = [&log](std::string_view row) { log.append(row).append(kLineEnd); };
  std::ranges::for_each(MadeHeader(station, qsos), add);
  add("[Remarks]");
  add(Join("[QSORecords;", qsos, "]"));
  for (std::size_t number = 1; number <= qsos; ++number) {
    add(MadeQso(Worked(station, number), number));
  }
  add("[END;a writer]");
  return log;
}

void WriteMadeLogs(const std::string& folder, std::size_t logs, std::size_t qsos) {
  std::filesystem::create_directories(folder);
  DiskFileSystem files;
  for (std::size_t station = 0; station < logs; ++station) {
    files.WriteAll(Join(folder, "/", MadeCall(station), ".edi"), MadeLog(station, qsos));
  }
}

}  // namespace velmar::bench
