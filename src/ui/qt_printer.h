#pragma once

#include <QPageLayout>
#include <functional>

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
  void Print(const PrintJob& job) override;
  void PrintPicture(const std::string& title, const Picture& picture) override;

 private:
  void OnPages(QPageLayout::Orientation orientation,
               const std::function<void(QPrinter& printer)>& draw);

  EventRunner& runner_;
};

/// Draws text on the pages of a printer that is set up, in a font of one width, the letters so much
/// smaller than told that the longest line fits. Small margins are widened. Raises error 57 when no
/// page came out.
void PrintPages(QPrinter& printer, const PrintJob& job);

/// Draws a picture as large as it fits a page, in the middle of its width, the title above it.
/// Errors as above.
void PrintPicturePage(QPrinter& printer, const std::string& title, const Picture& picture);

}  // namespace velmar
