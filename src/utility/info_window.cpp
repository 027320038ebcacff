#include "utility/info_window.h"

#include "model/text.h"
#include "session/version.h"

namespace velmar {

InfoWindow::InfoWindow(Screen& screen, InfoForm& form) : screen_(screen), form_(form) {
  form_.cmdOK.on_click = [this] { cmdOK_Click(); };
}

void InfoWindow::Open() {
  form_.title = Join("Informazioni su ", kProgramTitle);
  form_.lblTitle.caption = kProgramTitle;
  form_.Label_info.caption = kProgramDate;
  screen_.Show(form_);
}

void InfoWindow::cmdOK_Click() {
  screen_.Hide(form_);
}

}  // namespace velmar
