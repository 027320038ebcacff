#include "utility/info_window.h"

#include <gtest/gtest.h>

#include <string>

#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {
namespace {

TEST(InfoWindow, TellsWhatTheProgramIsUntilItIsClosed) {
  Screen screen;
  InfoForm form;
  form.Label2.caption = " NUOVA VERSIONE DISPONIBILE";
  form.lblVersion.caption = "Vers. in uso 0.0.8";
  screen.Add(form);
  InfoWindow window(screen, form);
  window.Open();
  EXPECT_TRUE(form.visible());
  EXPECT_EQ(form.title, "Informazioni su VARTO Velmar VHF");
  EXPECT_EQ(form.lblTitle.caption, "VARTO Velmar VHF");
  EXPECT_EQ(form.Label_info.caption, "VARTO Velmar VHF - 02 Gennaio 2024 - Ver. 24-008");
  EXPECT_EQ(form.Label2.caption, " NUOVA VERSIONE DISPONIBILE") << "what start-up found stays";
  EXPECT_EQ(form.lblVersion.caption, "Vers. in uso 0.0.8");
  for (const AnsiView said : {"gratuito"_a, "uso radioamatoriale"_a, "senza alcuna garanzia"_a,
                              "è pregato di non usarlo"_a}) {
    EXPECT_TRUE(Holds(form.Text4.value, said)) << said;
  }
  form.cmdOK.Click();
  EXPECT_FALSE(form.visible());
  window.Open();
  EXPECT_TRUE(form.visible());
}

}  // namespace
}  // namespace velmar
