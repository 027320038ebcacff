#include "intake/insertion.h"

namespace velmar {

Insertion::Insertion(ContestSession& session, FileSystem& files, Manager& manager,
                     ContestStore& store, MonthAssignment& months, MainForm& form)
    : folder_(session, files, form),
      panel_(session, form),
      filing_(session, files, manager, store, folder_, panel_, form, log_),
      reading_(session, files, manager, store, months, folder_, panel_, form, filing_, log_) {
  for (Control* control : std::initializer_list<Control*>{&form.caricaedi, &form.apri}) {
    control->on_click = [this] { reading_.caricaedi_Click(); };
  }
  for (Control* control : std::initializer_list<Control*>{&form.Marcafile, &form.Marcatura}) {
    control->on_click = [this] { filing_.Marcafile_Click(); };
  }
  for (Control* control :
       std::initializer_list<Control*>{&form.Aggiorna, &form.aggiorna_categoria}) {
    control->on_click = [this] { reading_.Aggiorna_Click(); };
  }
  form.Dir1.on_change = [this] { reading_.Dir1_Change(); };
}

}  // namespace velmar
