#include "made_logs.h"

#include <array>
#include <cstdint>
#include <string_view>

#include "model/lines.h"
#include "model/text.h"

namespace velmar::bench {

namespace {

constexpr std::array<std::string_view, 5> kPrefixes = {"IK", "IZ", "IW", "IU", "IN"};
constexpr std::size_t kLetters = 26;
static_assert(kMadeStations == kPrefixes.size() * 10 * kLetters * kLetters);

/// Has no divisor in common with the number of stations, so that a log meets none of them twice.
constexpr std::size_t kStep = 7;

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

std::string MadeQso(std::size_t station, std::size_t number) {
  const std::size_t minute = number % 360;
  const std::string time = ThreeDigits(700 + minute / 60 * 100 + minute % 60);
  return Join("250119;", time.size() < 4 ? "0" : "", time, ";", MadeCall(station), ";1;59;",
              ThreeDigits(number), ";59;", ThreeDigits(1 + Scrambled(station) % 400), ";;",
              MadeLocator(station), ";99;;N;;");
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
  const std::string call = MadeCall(station);
  std::string log;
  const auto add = [&log](std::string_view row) { log.append(row).append(kLineEnd); };
  add("[REG1TEST;1]");
  add("TName=Contest Velmar");
  add("TDate=20250119;20250119");
  add(Join("PCall=", call));
  add(Join("PWWLo=", MadeLocator(station)));
  add("PExch=");
  add("PAdr1=");
  add("PAdr2=");
  add("PSect=2IT");
  add("PBand=144 MHz");
  add("PClub=");
  add("RName=");
  add(Join("RCall=", call));
  add("MOpe1=");
  add("STXEq=");
  add("SPowe=50");
  add("SAnte=9 el");
  add("SAntH=10;350");
  add(Join("CQSOs=", qsos, ";1"));
  add("CToSc=0");
  add("[Remarks]");
  add(Join("[QSORecords;", qsos, "]"));
  for (std::size_t number = 1; number <= qsos; ++number) {
    add(MadeQso((station + kStep * number) % kMadeStations, number));
  }
  add("[END;a writer]");
  return log;
}

}  // namespace velmar::bench
