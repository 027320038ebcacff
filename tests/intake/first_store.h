#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "intake/insertion_desk.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar::test {

using Files = std::map<std::string, std::string>;

inline constexpr const char* kName = "2IT_IK2QAA.edi";
inline const std::string kGood = InsertableLog().Text();
inline const std::string kRows[] = {"250119;1000;IZ9QBC;1;59;001;59;012;;JM67AA;950;;N;;",
                                    "250119;1030;DL1AA;2;599;002;599;003;;JO30AA;576;;N;;",
                                    "250119;1101;I1ABC;1;59;003;59;004;;JN44BB;107;;;;"};

/// Lines with their ends.
inline std::string Text(const Names& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += Join(line, kLineEnd);
  }
  return text;
}

/// The store behind the filing of the good log as the first one.
inline Files FirstStore() {
  const std::string call = "IK2QAA      ";
  const std::string behind = "2ITJN45AAIK2QAA      ";
  const std::string root = "Trofeo_Velmar/2IT/2IT";
  return {
      {InsertionDesk::kDateFile, "2IT 250119\r\n"},
      {root + "_IK2QAA.edi", kGood},
      {root + "libreria.qso",
       Text({call + "IZ9QBC      JM67AA 950", call + "DL1AA       JO30AA 576",
             call + "I1ABC       JN44BB 107"})},
      {root + "libreria_totale.tot",
       Text({call + "IZ9QBC      JM67AA 2IT 950", call + "DL1AA       JO30AA 2IT 576",
             call + "I1ABC       JN44BB 2IT 107"})},
      {root + "somma_qso.slx",
       Text({call + ";" + kRows[0], call + ";" + kRows[1], call + ";" + kRows[2]})},
      {root + "somma_qso.qso", Text({kRows[0] + behind, kRows[1] + behind, kRows[2] + behind})},
      {root + " partecipanti.par", Text({"IK2QAA      JN45AA 2IT 144M"})},
      {root + "Classifica_modo.par", Text({"IK2QAA      JN45AA 144M  SSB= 2    CW = 1  "})},
      {root + "tempi.txt", ""},
      {root + " Statistica DX.cdx",
       Text({"2IT - IK2QAA      JN45AA - JM67AA  IZ9QBC      -  950  "})},
      {root + "-Contest Team.txt", Text({"IK2QAA       altri OP. :IK2QAB IK2QAC"})},
      {root + " Classifica Mensile 144 gennaio 2025.cla",
       Text({"  Call       Locator Aslm  Antenna             Pwr  Qso Declared ODX        DX    "
             "Ricalc.  Err  ErrQRB  P.QRB       %   Y/R   ",
             "IK2QAA       JN45AA  250  9 el yagi            100  3    1633    IZ9QBC     950   "
             "1633                   1633      0.0%   "})},
      {root + "-IK2QAA Lista errori GENNAIO 2025.err",
       Text({std::string(77, '='), "         Lista errori   Velmar     GENNAIO 2025", "",
             " Call: IK2QAA               Loc. JN45AA        Declared: 1633           Banda 144 Mhz"
             "               Cat.2IT",
             std::string(77, '-'),
             "  n     Call     n° qso   Tipo errore       errore     corretto   err qrb"_a})}};
}

/// Compares file by file, so that a difference is told with its file.
inline void ExpectFiles(const Files& got, const Files& want) {
  for (const auto& [path, bytes] : want) {
    const auto found = got.find(path);
    EXPECT_EQ(found == got.end() ? "<missing>" : found->second, bytes) << path;
  }
  for (const auto& [path, bytes] : got) {
    EXPECT_TRUE(want.contains(path)) << "unexpected: " << path;
  }
}

}  // namespace velmar::test
