// The keys of the desk's window.

#include <QKeySequence>
#include <QLabel>
#include <QStringList>

#include "ui/check_window.h"
#include "ui/qt_text.h"

namespace velmar {

void CheckWindow::SetKeys() {
  struct Choice {
    const Button* button;
    QKeySequence key;
  };
  const Choice choices[] = {{&form_.conferma_errore, Qt::Key_F5},
                            {&form_.errore_call, Qt::Key_F6},
                            {&form_.not_inlog, Qt::Key_F7},
                            {&form_.QSO_ok, Qt::Key_F8},
                            {&form_.NO_in_log, Qt::ALT | Qt::Key_5},
                            {&form_.no_errore, Qt::ALT | Qt::Key_6},
                            {&form_.error_call_unici, Qt::ALT | Qt::Key_1},
                            {&form_.Errore_locatore, Qt::ALT | Qt::Key_2},
                            {&form_.marca_unico, Qt::ALT | Qt::Key_3},
                            {&form_.ok_call_unici, Qt::ALT | Qt::Key_4},
                            {&form_.unici, Qt::Key_F9},
                            {&form_.aggiorna_punt_class, Qt::Key_F11},
                            {&form_.ordina, Qt::Key_F12},
                            {&form_.chiudi, Qt::Key_Escape},
                            {&form_.primo_dacontrollare, Qt::Key_F2},
                            {&form_.prossimo, Qt::Key_F3},
                            {&form_.vis_err, Qt::Key_F4},
                            {&form_.vedi_log2, Qt::ALT | Qt::Key_7},
                            {&form_.log_callda_cercare, Qt::ALT | Qt::Key_8},
                            {&form_.cerca_qso, Qt::ALT | Qt::Key_9},
                            {&form_.cerca_probabile, Qt::ALT | Qt::Key_0},
                            {&form_.control_time, Qt::CTRL | Qt::Key_T},
                            {&form_.nasondi, Qt::CTRL | Qt::Key_F9},
                            {&form_.conf_err_time, Qt::CTRL | Qt::Key_F5},
                            {&form_.conf_err_RST, Qt::CTRL | Qt::Key_F6},
                            {&form_.convalida_qso_time, Qt::CTRL | Qt::Key_F8},
                            {&form_.Tutti_loc, Qt::CTRL | Qt::Key_L},
                            {&form_.Tutti_call, Qt::CTRL | Qt::Key_K},
                            {&form_.database, Qt::CTRL | Qt::Key_D},
                            {&form_.CercaDtbIaru, Qt::CTRL | Qt::Key_I},
                            {&form_.ric_in_quel_locatore, Qt::CTRL | Qt::Key_R},
                            {&form_.internet, Qt::CTRL | Qt::Key_Q},
                            {&form_.SEARC_loc, Qt::CTRL | Qt::Key_M},
                            {&form_.espandi_archivio, Qt::CTRL | Qt::Key_B},
                            {&form_.stampa_errori, Qt::CTRL | Qt::Key_P}};
  for (const auto& [button, key] : choices) {
    SetKey(*button, key);
    keys_.push_back({button, findChild<QWidget*>(ToQString(button->name)),
                     key.toString(QKeySequence::NativeText)});
  }
}

/// Tells at the foot of the window the keys that do something now, as many as can be taken in.
void CheckWindow::TellKeys() {
  constexpr qsizetype kMost = 8;
  QStringList told;
  for (const auto& [button, widget, name] : keys_) {
    if (widget->isVisibleTo(this) && button->Reachable() && told.size() < kMost) {
      told += QStringLiteral("%1 %2").arg(name, ToQString(button->caption).trimmed());
    }
  }
  hint_->setText(told.join(QStringLiteral("   ")));
}

}  // namespace velmar
