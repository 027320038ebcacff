#include "ui/qt_printer.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include "platform/error.h"

namespace velmar::test {
namespace {

struct PdfFixture {
  QTemporaryDir folder{QDir::tempPath() + QStringLiteral("/stampa di prova XXXXXX")};
  QPrinter printer{QPrinter::HighResolution};

  void Print(const QString& path, int lines) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    PrintPages(printer,
               {{.lines = std::vector<std::string>(static_cast<std::size_t>(lines), "IK2QAA")}});
  }

  /// Prints a number of lines and counts the pages that came out.
  qsizetype PagesOf(int lines) {
    const QString path = folder.filePath(QStringLiteral("lista.pdf"));
    Print(path, lines);
    QFile file(path);
    EXPECT_TRUE(file.open(QFile::ReadOnly));
    const QByteArray text = file.readAll();
    return text.count("/Type /Page\n");
  }
};

TEST(QtPrinter, LinesFlowOverPages) {
  PdfFixture fixture;
  EXPECT_EQ(fixture.PagesOf(1), 1);
  const qsizetype pages = fixture.PagesOf(200);
  EXPECT_GT(pages, 1);
  EXPECT_NEAR(fixture.PagesOf(400), 2 * pages, 1) << "the last page may be short";
}

TEST(QtPrinter, APathThatCannotBeWrittenIsAnError) {
  PdfFixture fixture;
  const QString path = fixture.folder.filePath(QStringLiteral("nessuna cartella/lista.pdf"));
  EXPECT_THROW(fixture.Print(path, 1), RunTimeError);
}

}  // namespace
}  // namespace velmar::test
