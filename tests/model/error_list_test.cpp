#include "model/error_list.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {
namespace {

struct Log {
  const char *call, *declared, *band;
};

std::string Head(const Log& log) {
  return ErrorListHeadText({.title = "Contest Velmar",
                            .month = "GENNAIO 2025",
                            .call = Call12(log.call),
                            .locator = "JN45NK",
                            .declared = log.declared,
                            .band = log.band,
                            .category = "2IT"});
}

// Each item of the fourth line begins a zone of 14 columns, the next one that is free.
TEST(ErrorList, TheHeadByteForByte) {
  const std::pair<Log, std::string> cases[] = {
      {{"I2ABC", " 345   ", " 144 Mhz"},
       " Call: I2ABC                Loc. JN45NK        Declared: 345            "
       "Banda 144 Mhz               Cat.2IT"},
      {{"IK2QAA", " 21340 ", " 144 Mhz"},
       " Call: IK2QAA               Loc. JN45NK        Declared: 21340          "
       "Banda 144 Mhz               Cat.2IT"},
      {{"IK2QAAA", " 0     ", ""},
       " Call: IK2QAAA              Loc. JN45NK        Declared: 0              "
       "Banda         Cat.2IT"},
      {{"IV3/IK2QAA/P", " 123456", " 144 Mhz"},
       " Call: IV3/IK2QAA/P         Loc. JN45NK        Declared: 123456         "
       "Banda 144 Mhz               Cat.2IT"},
      {{"IK2QAA", " 1234567", " 144 Mhz"},
       " Call: IK2QAA               Loc. JN45NK        Declared: 1234567        "
       "Banda 144 Mhz               Cat.2IT"},
      {{"IK2QAA", " 1234567890123", " 144 Mhz"},
       " Call: IK2QAA               Loc. JN45NK        Declared: 1234567890123  "
       "              Banda 144 Mhz               Cat.2IT"}};
  for (const auto& [log, line] : cases) {
    EXPECT_EQ(
        Head(log),
        Join("=============================================================================\r\n"
             "         Lista errori  Contest Velmar   GENNAIO 2025\r\n\r\n",
             line,
             "\r\n-----------------------------------------------------------------------------\r\n"
             "  n     Call     n° qso   Tipo errore       errore     corretto   err qrb\r\n"_a));
  }
}

}  // namespace
}  // namespace velmar
