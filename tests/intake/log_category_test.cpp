#include <gtest/gtest.h>

#include "intake/insertion_desk.h"
#include "model/text.h"

namespace velmar::test {
namespace {

constexpr const char* kName = "2IT_IK2QAA.edi";
const Box kWrongCategory{.lines = {" ATTENZIONE,  !!!  Freq. o Categoria mancante o errata  !!!"},
                         .icon = Icon::kStop};
const Box kUpdateCategory = Told("Aggiorna Categoria/Freq. e RICARICA il file");

Box CategoryQuestion() {
  return {.lines = {" Vuoi proseguire ?    (SI) assegno cat/freq       (NO) sposta file"},
          .icon = Icon::kQuestion,
          .title = "Sposto file in: LOG DA RICONTROLLARE",
          .buttons = Buttons::kYesNo};
}

TEST(LogCategoryTest, ACategoryIsAssignedAndTheLogReadAgain) {
  struct Case {
    InsertableLog log;
    bool admitted;
    bool test_run;
  };
  for (const Case& c : std::initializer_list<Case>{
           {InsertableLog().Row(9, "PSect=UNI"), true, false},
           {InsertableLog().Row(9, "PSect=3IT"), true, true},
           {InsertableLog().Row(9, "PSect=3IT"), false, false},
           {InsertableLog().Row(9, "PSect=2it"), false, false},
           {InsertableLog().Row(9, "PSect=").Row(10, "PBand="), false, false},
           {InsertableLog().Row(10, "PBand=432 MHz"), false, false}}) {
    InsertionDesk desk;
    desk.main.Testlog.checked = c.test_run;
    desk.Waiting(kName, InsertableLog(c.log).Start("\r\nps\r\n[QSORecords;3]").Text());
    std::vector<Box> boxes = {kWrongCategory, kUpdateCategory};
    if (!c.admitted) {
      desk.manager.replies = {Reply::kYes};
      boxes.insert(boxes.begin() + 1,
                   {Told(" Prego correggere Frequenza / categoria "), CategoryQuestion()});
    }
    desk.Read();
    EXPECT_EQ(desk.manager.boxes, boxes);
    MainForm& main = desk.main;
    EXPECT_TRUE(main.Aggiorna.visible && main.Aggiorna.enabled);
    EXPECT_FALSE(main.caricaedi.visible || main.Marcafile.visible);
    for (const Control* field :
         std::initializer_list<const Control*>{&main.categoria, &main.frequenza, &main.newcate}) {
      EXPECT_EQ(field->colour, colour::kRed) << field->name;
    }
    main.newcate.Select(0);
    main.Aggiorna.Click();
    EXPECT_EQ(desk.workspace.Read(Join("03 Log da inserire/", kName)),
              InsertableLog().Row(10, "PBand=144M").Start("ps\r\n[QSORecords;3]").Text());
    EXPECT_EQ(main.categoria.colour, colour::kGreen);
    EXPECT_TRUE(main.caricaedi.visible);
    EXPECT_FALSE(main.Marcafile.visible);
    desk.Read();
    EXPECT_TRUE(main.Marcafile.visible);
    EXPECT_EQ(desk.manager.boxes.size(), boxes.size());
  }
  InsertionDesk desk;
  desk.Waiting(kName, InsertableLog().Row(9, "PSect=3IT").Text());
  desk.manager.replies = {Reply::kNo};
  desk.Read();
  EXPECT_EQ(desk.SetAside(), Names{"3IT 2IT_IK2QAA.edi -_- err_categ.edi"});
  EXPECT_TRUE(desk.main.caricaedi.visible);
}

}  // namespace
}  // namespace velmar::test
