#pragma once

#include "platform/printer.h"

class QPrinter;

namespace velmar {

class EventRunner;

/// Prints on the printer, or into the PDF file, that the platform's print dialog gives. A dialog
/// that is cancelled prints nothing, and is no error.
class QtPrinter : public Printer {
 public:
  explicit QtPrinter(EventRunner& runner) : runner_(runner) {}

  /// Always: without a printer the dialog still offers a PDF file.
  bool Installed() override { return true; }
  void Print(const std::vector<std::string>& lines) override;

 private:
  EventRunner& runner_;
};

/// Draws lines on the pages of a printer that is set up, in a font of one width that lets the
/// longest one fit. Raises error 57 when no page came out.
void PrintPages(QPrinter& printer, const std::vector<std::string>& lines);

}  // namespace velmar
