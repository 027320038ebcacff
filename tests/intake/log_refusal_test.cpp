#include <gtest/gtest.h>

#include "intake/insertion_desk.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar::test {
namespace {

using Boxes = std::vector<Box>;

/// A log that is refused: what the manager reads, and where it lies afterwards.
struct Refused {
  InsertableLog log;
  Boxes boxes;
  std::string suffix;
  std::string front{};
  std::string name = "2IT_IK2QAA.edi";
  std::deque<Reply> replies{};
};

void ExpectRefused(const Refused& c) {
  SCOPED_TRACE(c.suffix);
  InsertionDesk desk;
  desk.Waiting(c.name, c.log.Text());
  desk.manager.replies = c.replies;
  desk.main.Ins_auto.checked = true;
  desk.Read();
  for (std::size_t i = 0; i < std::max(c.boxes.size(), desk.manager.boxes.size()); ++i) {
    const Box none;
    const Box& want = i < c.boxes.size() ? c.boxes[i] : none;
    const Box& got = i < desk.manager.boxes.size() ? desk.manager.boxes[i] : none;
    EXPECT_EQ(got.lines, want.lines);
    EXPECT_EQ(got.title, want.title);
    EXPECT_TRUE(got == want) << "icon, buttons or default of box " << i;
  }
  EXPECT_EQ(desk.PlacesOf(c.log.Text()),
            Names{"Trofeo_Velmar/Log da ricontrollare/" + c.front + c.name + c.suffix});
  EXPECT_TRUE(desk.main.caricaedi.visible && desk.main.apri.enabled && desk.main.Info.enabled);
  EXPECT_FALSE(desk.main.Marcafile.visible || desk.main.Marcatura.enabled);
  EXPECT_TRUE(desk.main.controllo.enabled && desk.main.Utility.enabled);
  EXPECT_EQ(desk.main.Callusato.value + desk.main.punti.value, "");
  EXPECT_EQ(desk.main.num_file2.caption, "0");
  EXPECT_TRUE(desk.Inbox().empty() || c.suffix != " -_- log_errato.edi") << "no scratch copy stays";
  EXPECT_EQ(desk.Store("libreria.qso"), "<missing>");
}

/// The same of a log under the usual name, of which one box speaks.
void ExpectTold(const InsertableLog& log, std::string_view text, const std::string& suffix,
                const std::string& front = "") {
  ExpectRefused({.log = log, .boxes = {Told(text)}, .suffix = suffix, .front = front});
}

const Box kBadHeader{
    .lines = {" lettura  interrotta, controlla il file EDI esterno a questo programma",
              " il file è stato spostato nella dir 'Log da ricontrollare'"_a},
    .icon = Icon::kStop};

TEST(LogRefusalTest, TheNameOfTheFile) {
  for (const char* name : {"3IT_IK2QAA.edi", "2ITIK2QAA.edi", "IK2QAA.edi", "2IT", "readme.txt"}) {
    ExpectRefused({.log = {},
                   .boxes = {{.lines = {Join(" il nome del file : ''", name,
                                             "'' , non è corretto. Inserimento annullato."_a)}}},
                   .suffix = " -_- bad name file .edi",
                   .name = name});
  }
  ExpectRefused(
      {.log = {},
       .boxes = {Told(
           " ATTENZIONE,  nel nome di questo log non c'è il numero.|"
           " Esci dal programma e correggi il nome del log manualmente.| Inserimento annullato."_a)},
       .suffix = " -_- call senza numero.edi",
       .name = "2IT_ABC.edi"});
}

TEST(LogRefusalTest, ADateOrNoQsosAreToldAheadOfTheHeader) {
  const auto date_box = [](const char* shown) {
    return Box{
        .lines = {"                                 ATTENZIONE                 ",
                  "     nel log di  2IT_IK2QAA.edi", " le date dei qso       ",
                  "     non corrispondono ai giorni del contest.               ", "     ",
                  "     La data del contest è :  2025-01-19"_a,
                  Join("     sul log risulta che la data del qso è : <20"_a, shown, " >     "),
                  "  ", "     Il file sarà spostato nella directory 'log da ricontrollare'"_a,
                  "     è sarà necessario uscire e correggere il log manualmente.   "_a},
        .icon = Icon::kStop};
  };
  const auto bad_header = InsertableLog().Row(2, "x");
  ExpectRefused({.log = InsertableLog(bad_header).Qsos({"250120;1005;IZ9QBC;1;;;;;;;;;;;"}),
                 .boxes = {date_box("25-01-20")},
                 .suffix = " -_- bad_data_qso.edi"});
  ExpectRefused({.log = InsertableLog().Qsos({"", ContestQso("DL1AA", "JO30AA")}),
                 .boxes = {date_box(" riga vuota ")},
                 .suffix = " -_- bad_data_qso.edi"});
  ExpectTold(InsertableLog(bad_header).Start("[QSORecords;0]"),
             " Attenzione  | In questo log è stato dichiarato che i qso sono ZERO |"
             " controlla la riga  [QSORecords;0] del log|"
             " NON è possibile inserire un log con ZERO qso.|  | propritario = 2IT_IK2QAA.edi"_a,
             " -_- qso a zero.edi");
}

TEST(LogRefusalTest, TheHeader) {
  const std::string suffix = " -_- bad_Title_.edi";
  const auto first_row = [&](std::string_view row, int length) {
    const Box told{
        .lines = {"                      Problemi con log di:  2IT_IK2QAA.edi   ",
                  " Controlla che l'intestazione sia conforme alle direttive IARU REG 1  ",
                  " riga 1 non conforme = ",
                  Join("-", row, "- ci sono ", length, " e non 12 caratteri. Controlla il log")}};
    ExpectRefused({.log = InsertableLog().Row(1, row).Row(2, "x"),
                   .boxes = {told, kBadHeader},
                   .suffix = suffix});
  };
  first_row("[REG1TEST;1] ", 13);
  first_row("\xEF\xBB\xBF[REG1TEST;1]", 15);
  ExpectRefused(
      {.log = InsertableLog().Row(2, "T Name=x").Row(4, "").Row(37, "CODXC "),
       .boxes =
           {Told(" problemi : alla riga 2 ci deve essere il nome contest  < TName >    invece ho"
                 " trovato : T Name=x"),
            Told(" problemi : alla riga 4 ci deve essere il Call  < PCall >    invece ho trovato "
                 ": "),
            kBadHeader},
       .suffix = suffix});
  ExpectRefused(
      {.log = InsertableLog().Row(11, "PClub").Row(37, "CODXC").Row(36, "[Remarks]"),
       .boxes =
           {Told(" problemi : alla riga 11 ci deve essere il club di appartenenza < PClub= >   "
                 "invece"
                 " ho trovato : PClub"),
            Told(" problemi : alla riga 36 ci deve essere Punteggio totale < CToSc >   invece ho"
                 " trovato : [Remarks]"),
            kBadHeader},
       .suffix = suffix});
}

TEST(LogRefusalTest, DeclaredValues) {
  ExpectTold(InsertableLog().Row(4, "PCall=IKQAA/2"),
             " ATTENZIONE il call non ha il numero.|"
             " Esci dal programma e correggi il log manualmente.| Inserimento annullato,|"
             " File spostato in ...\\Log da ricontrollare",
             " -_- call no numero.edi");
  ExpectTold(InsertableLog().Row(28, "CQSOs=0;3"),
             " sono stati dichiarati ZERO qso |"
             " se non ci sono qso, il log non può essere inserito. Controlla"_a,
             " -_- manca numero qso.edi");
  ExpectTold(InsertableLog().Row(29, "CQSOP=1.633"),
             " ATTENZIONE |"
             " alla riga 29 (CQSOP=) deve comparire SOLO il numero del punteggio effettuato|"
             " Questo dato NON è optional o modificabile, è calcolato dal programma utilizzato |"
             " per generare il file edi e non deve essere modificato.|"
             " Questo log non può essere inserito.| |"
             " In questa riga deve esserci SOLO un numero e nessun altro simbolo o lettera |"
             " esempio dati  corretti : CQSOP=43220| invece è stato trovato : CQSOP=1.633"_a,
             " -_- manca punteggio.edi");
  ExpectTold(InsertableLog().Row(29, "CQSOP="),
             " ATTENZIONE | alla riga 29 (CQSOP=) manca il numero del punteggio dichiarato.|"
             " Questo dato NON è optional, è calcolato dal programma utilizzato |"
             " per generare il file edi e non deve essere mancante|"
             " Questo log non può essere inserito.| |"
             " Inserisci in quella riga il valore che c'è alla riga 'CQSOP=' |"
             " sulla stessa intestazione del log"_a,
             " -_- manca punteggio.edi");
  ExpectTold(InsertableLog().Row(36, "CToSc="),
             " ATTENZIONE | alla riga 36 (CToSc=) manca il valore del punteggio totale ottenuto.|"
             " Questo dato NON è optional, è calcolato dal programma utilizzato |"
             " per generare il file edi e non deve essere mancante o manomesso.|"
             " Questo log non può essere inserito.| |"
             " Inserisci in quella riga il valore del totale dei punti di tutti i qso|"
             " File spostato in ......\\Log da ricontrollare"_a,
             " -_- no totale punti.edi");
  ExpectTold(InsertableLog().Row(37, "CODXC=IZ9QBC;JM67AA"),
             " ATTENZIONE nel log alla riga CODXC i dati non sono corretti|"
             " nella riga relativa la qso DX. CODXC=        |"
             " I dati possono essere omessi ma i 2 ;; devono esserci. |"
             " Correggi il log manualmente. Inserimento annullato| |"
             " File è stato spostato in ...\\Log da ricontrollare"_a,
             " -_- noDX no PuntiV.edi", "2IT ");
}

TEST(LogRefusalTest, AnUnusableRowIsToldAheadOfTheRowsBehindIt) {
  ExpectTold(InsertableLog().Row(30, "CWWLs=1;2;3;4").Row(28, "CQSOs=x"),
             " sono stati dichiarati ZERO qso |"
             " se non ci sono qso, il log non può essere inserito. Controlla"_a,
             " -_- manca numero qso.edi");
  InsertionDesk desk;
  desk.Waiting("2IT_IK2QAA.edi", InsertableLog().Row(30, "CWWLs=1;2;3;4").Row(36, "CToSc=").Text());
  desk.Read();
  EXPECT_EQ(desk.manager.TakeFirstLines(),
            (Names{" errore inaspettato . probabili dati alterati riga 30 nell'intestazione. Log "
                   "manipolato",
                   " ATTENZIONE "}));
}

TEST(LogRefusalTest, TheDeclaredCounts) {
  const std::string suffix = " -_- qso validi magg dei tot.edi";
  ExpectRefused(
      {.log = InsertableLog().Row(28, "CQSOs=4;1"),
       .boxes =
           {Told(" Attenzione log non inseribile. |"
                 " Nel log che  si sta leggendo il numero di qso dichiarati validi,|"
                 " sono maggiori del numero totale di qso esistenti.| Questo non è posibile."_a),
            kPassFailed},
       .suffix = suffix});
  ExpectRefused(
      {.log = InsertableLog().Start("[QsoRecords;3]"),
       .boxes = {Told(" Attenzione log non inseribile. |"
                      " NON è stato trovata la riga contenente la parola chiave [QSORecords;....]|"
                      " Controlla che sia scritta correttamente senza spazi vuoti,|"
                      " che rispetti le maiuscole, minuscole, e che|"
                      " contenga il numero di qso effettivi a log"_a),
                 kPassFailed},
       .suffix = suffix});
}

TEST(LogRefusalTest, TheLastChecks) {
  for (const char* end :
       {"[END; a writer]", "", "[END;recalculated for VLM]", "[END; recalculated for VLM]\r\n"}) {
    ExpectTold(InsertableLog().End(end),
               "Il file caricato non è stato processato con il ricalcolo del qrb.|"
               "Questo log non può essere inserito."_a,
               " -_- no ricalcolo.edi");
  }
  ExpectTold(InsertableLog().Qsos({}).Start("[QSORecords;3]").Row(28, "CQSOs=3;1"),
             "problemi con il file edi (non ci sono qso), controlla !!!", " -_- log_errato.edi",
             "2IT ");
  ExpectTold(InsertableLog().Row(9, "PSect=UNICA"),
             " La categoria DICHIARATA nel file è diversa da quella indicata nel NOME del file|"
             " Categoria dichiarata =  [ UNICA ] categoria nel nome file = [2I]|"
             " inserimento del file annullato.  Esci e correggi.|  |"
             " Il file sarà spostato nella directory 'Log da ricontrollare'"_a,
             "-_-nome e cat diverse.edi");
}

TEST(LogRefusalTest, CountsThatDoNotAgree) {
  const std::string suffix = " -_- correggi qso.edi";
  ExpectTold(InsertableLog().Row(28, "CQSOs=2;1"),
             "                  A T T E N Z I O N E      nel log di 2IT_IK2QAA.edi|"
             " I qso da inserire NON corrispondono al numero di qso dichiarati a log.|"
             " i qso dichiarati validi sono : 2 , i qso totali nel log sono : 3| |"
             " Nella riga 'CQSOs=' ci deve essere il numero di qso VALIDI che ci sono nel log.|"
             " (per validi si intende i qso totali meno i qso ERROR e doppi).|  |"
             " in pratica la riga :|"
             " CQSOs=2;1 e la riga [QSORecords;3] devono contene lo stesso numero |"
             " se non ci sono qso doppi o error.|   |"
             " Il programma ha rilevato 0 qso error e  0 qso doppi|  |"
             " Nella riga 'CQSOs=2 deve esserci il numero di qso validi a log che sono  3| |"
             " I qso totali sono: 3| La riga [QSORecords;3]  deve contenere 3| |"
             " il log non può essere inserito. Correggi"_a,
             suffix);
  const std::string twice = ContestQso("DL1AA", "JO30AA");
  ExpectTold(InsertableLog().Qsos({twice, ContestQso("ERROR", ""), twice}),
             " A T T E N Z I O N E  i qso da inserire NON corrispondono ai qso dichiarati.|"
             " i qso dichiarati validi sono: 3  i qso totali nel log sono : 3|"
             " ma nel log c'è/ci sono 1 qso doppi o qso errore |                              |"
             " Correggi il Log di IK2QAA| Alla riga CQSOs=3;1|      sostituisci 3   con   2|"
             " Il log non può essere inserito."_a,
             suffix);
}

TEST(LogRefusalTest, RowsThatThePassRefuses) {
  const std::string annulled = " Inserimento annullato. ";
  const std::string moved = " Il log stato spostato in ....\\Log da ricontrollare";
  struct Case {
    std::string time;
    Names told;
    std::string suffix;
  };
  for (const Case& c : std::initializer_list<Case>{
           {"0959",
            {" Il qso risulta fatto prima dell' inizio del contest"},
            " -_- fuori orario prima.edi"},
           {"1102",
            {" Il qso risulta fatto dopo la fine del contest",
             " Non possono esscerci qso oltre le ore 11.00 GMT "},
            " -_- fuori orario dopo.edi"},
           {"10.5",
            {" Il qso risulta fatto prima dell' inizio del contest"},
            " -_- fuori orario prima.edi"},
           {"10:05",
            {" l' orario del qso risulta in formato errato ",
             " Formato ora : 4 cifre senza altri segni. ES. ora '17:00' va scritto '1700'"},
            " -_- ora non valido.edi"}}) {
    const std::string row = ContestQso("DL1AA", "JO30AA", c.time);
    Box box{.lines = {Join(" Log di IK2QAA  Orario non valido. Ora = ", c.time), "    ", row, " "}};
    box.lines.insert(box.lines.end(), c.told.begin(), c.told.end());
    box.lines.insert(box.lines.end(), {annulled, moved});
    ExpectRefused({.log = InsertableLog().Qsos({ContestQso("DL2AA", "JO30AA"), row}),
                   .boxes = {box},
                   .suffix = c.suffix});
  }
  ExpectTold(InsertableLog().Row(28, "CQSOs=2;1").Start("[QSORecords;2]"),
             " Il numero di qso dichiarato NON coincide con i qso nel log.  CONTROLLA |"
             " qso dichiarati= 2   qso letti =3| Inserimento log annullato.|"
             " Il log è stato spostato in ...\\Log da ricontrollare"_a,
             " -_- n qso errati.edi");
  const std::string no_mode = ContestQso("DL1AA", "JO30AA", "1005", "");
  ExpectRefused({.log = InsertableLog().Qsos({ContestQso("DL2AA", "JO30AA"), no_mode}),
                 .boxes = {{.lines = {"il qso n°2 è privo del modo di emissione."_a, no_mode,
                                      " Tra la fine del call e il primo '59' ci deve eseere un "
                                      "numero",
                                      " compreso fra i due punti e virgola. ", "  ",
                                      " esempio di correzzione: 250119;1005;DL1AA 1 ; 59;... qso "
                                      "in ssb "},
                            .title = "LOG non valido"}},
                 .suffix = " -_- log_errato.edi",
                 .front = "2IT "});
}

}  // namespace
}  // namespace velmar::test
