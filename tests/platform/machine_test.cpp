#include "platform/machine.h"

#include <gtest/gtest.h>

namespace velmar {
namespace {

TEST(PingMilliseconds, ReadsTheNumberAheadOfTheFirstUnit) {
  const struct {
    const char* output;
    std::optional<double> milliseconds;
  } cases[] = {{"\r\nEsecuzione di Ping 127.0.0.1 con 32 byte di dati:\r\n"
                "Risposta da 127.0.0.1: byte=32 durata=12ms TTL=128\r\n\r\n"
                "    Minimo = 40ms, Massimo =  41ms, Medio =  42ms\r\n",
                12},
               {"Risposta da 127.0.0.1: byte=32 tempo<1ms TTL=128\r\n", 1},
               {"Reply from 127.0.0.1: bytes=32 time=1234ms TTL=54\r\n", 1234},
               {"Reply from 127.0.0.1: time 0.5ms TTL=54\nlater time=2ms TTL=54\n", 0.5},
               {"a=5\r\n9ms \r\n", 9},             // no mark in its line
               {"time=3ms\r\ntime=4ms x\r\n", 4},  // the unit has a blank behind it
               {"time=12 ms \n", 0},               // no number behind the last blank
               {"time=abms \n", 0},
               {"Richiesta scaduta.\r\n", std::nullopt},
               {"time=12ms", std::nullopt},
               {"", std::nullopt}};
  for (const auto& [output, milliseconds] : cases) {
    EXPECT_EQ(PingMilliseconds(output), milliseconds) << output;
  }
}

}  // namespace
}  // namespace velmar
