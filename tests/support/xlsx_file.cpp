#include "support/xlsx_file.h"

#include <gtest/gtest.h>
#include <minizip/unzip.h>

#include <QXmlStreamReader>
#include <cmath>
#include <functional>
#include <memory>
#include <utility>

#include "platform/ansi.h"

namespace velmar::test {

namespace {

std::map<std::string, std::string> Unzipped(const std::string& path) {
  std::map<std::string, std::string> parts;
  const std::unique_ptr<void, int (*)(unzFile)> zip(unzOpen(path.c_str()), &unzClose);
  if (!zip) {
    ADD_FAILURE() << "no zip file: " << path;
    return parts;
  }
  for (int state = unzGoToFirstFile(zip.get()); state == UNZ_OK;
       state = unzGoToNextFile(zip.get())) {
    unz_file_info info{};
    std::string name(256, '\0');
    unzGetCurrentFileInfo(zip.get(), &info, name.data(), name.size(), nullptr, 0, nullptr, 0);
    name.resize(info.size_filename);
    std::string bytes(info.uncompressed_size, '\0');
    unzOpenCurrentFile(zip.get());
    EXPECT_EQ(unzReadCurrentFile(zip.get(), bytes.data(), static_cast<unsigned>(bytes.size())),
              static_cast<int>(bytes.size()));
    EXPECT_EQ(unzCloseCurrentFile(zip.get()), UNZ_OK) << name;
    parts.emplace(name, std::move(bytes));
  }
  return parts;
}

std::string Ansi(QStringView text) {
  return AnsiFromUtf8(text.toUtf8().toStdString());
}

/// An element of a part, and those within it.
struct Element {
  std::string name;
  std::map<std::string, std::string> attributes;
  std::string text;
  std::vector<Element> inner;

  std::string Get(const std::string& attribute, std::string otherwise = "") const {
    const auto found = attributes.find(attribute);
    return found == attributes.end() ? otherwise : found->second;
  }
  int Number(const std::string& attribute) const { return std::stoi(Get(attribute, "0")); }
  /// The first one of that name within it; an empty one for none.
  const Element& operator[](std::string_view wanted) const {
    static const Element kNone;
    for (const Element& element : inner) {
      if (element.name == wanted) {
        return element;
      }
    }
    return kNone;
  }
  bool Has(std::string_view wanted) const { return !(*this)[wanted].name.empty(); }
};

Element ReadElement(QXmlStreamReader& xml) {
  Element element;
  element.name = Ansi(xml.name());
  for (const QXmlStreamAttribute& attribute : xml.attributes()) {
    element.attributes[Ansi(attribute.name())] = Ansi(attribute.value());
  }
  while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::EndElement) {
    if (xml.isStartElement()) {
      element.inner.push_back(ReadElement(xml));
    } else if (xml.isCharacters()) {
      element.text += Ansi(xml.text());
    }
  }
  return element;
}

Element Root(const std::string& part) {
  QXmlStreamReader xml(QByteArray::fromStdString(part));
  Element root = xml.readNextStartElement() ? ReadElement(xml) : Element();
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return root;
}

int Colour(const Element& element) {
  const std::string argb = element.Get("rgb");
  const int rgb = argb.empty() ? 0 : static_cast<int>(std::stoul(argb, nullptr, 16) & 0xFFFFFFU);
  return rgb >> 16 | (rgb & 0xFF00) | (rgb & 0xFF) << 16;
}

CellFont Font(const Element& element, const char* name) {
  return {.name = element[name].Get("val"),
          .size = std::stod(element["sz"].Get("val", "0")),
          .bold = element.Has("b"),
          .italic = element.Has("i"),
          .underline = element.Has("u"),
          .colour = Colour(element["color"])};
}

int Weight(const Element& side) {
  const std::map<std::string, int> weights = {
      {"", 0}, {"hair", xl::kHairline}, {"thin", xl::kThin}, {"medium", xl::kMedium}};
  const auto found = weights.find(side.Get("style"));
  EXPECT_NE(found, weights.end()) << side.Get("style");
  return found == weights.end() ? 0 : found->second;
}

int Alignment(const std::string& name) {
  return name == "center"  ? xl::kCenter
         : name == "left"  ? xl::kLeft
         : name == "right" ? xl::kRight
                           : 0;
}

std::vector<CellFormat> Formats(const Element& styles) {
  std::map<std::string, std::string> codes = {{"0", ""}, {"3", "#,##0"}, {"10", "0.00%"}};
  for (const Element& code : styles["numFmts"].inner) {
    codes[code.Get("numFmtId")] = code.Get("formatCode");
  }
  std::vector<CellFormat> formats;
  for (const Element& xf : styles["cellXfs"].inner) {
    CellFormat format;
    format.font = Font(styles["fonts"].inner.at(xf.Number("fontId")), "name");
    const Element& fill = styles["fills"].inner.at(xf.Number("fillId"))["patternFill"];
    if (fill.Get("patternType") == "solid") {
      format.interior = Colour(fill["fgColor"]);
    }
    const Element& border = styles["borders"].inner.at(xf.Number("borderId"));
    format.borders = {Weight(border["left"]), Weight(border["top"]), Weight(border["right"]),
                      Weight(border["bottom"])};
    format.horizontal = Alignment(xf["alignment"].Get("horizontal"));
    format.vertical = Alignment(xf["alignment"].Get("vertical"));
    format.wrap = xf["alignment"].Get("wrapText") == "1";
    format.number_format = codes.at(xf.Get("numFmtId", "0"));
    formats.push_back(format);
  }
  return formats;
}

CellPlace PlaceOf(std::string_view address) {
  Worksheet any("");
  return any.Range(address).block().first;
}

void SetText(Cell& cell, const Element& item) {
  std::string text = item["t"].text;
  for (const Element& run : item.inner) {
    if (run.name != "r") {
      continue;
    }
    const std::string& part = run["t"].text;
    const CellFont font = Font(run["rPr"], "rFont");
    if (run.Has("rPr") && font != cell.format.font) {
      cell.pieces.push_back({text.size() + 1, part.size(), font});
    }
    text += part;
  }
  cell.value = text;
}

/// The characters of a column whose width in the file counts its margins of 5 pixels as well, with
/// digits of 6 pixels; the file keeps whole pixels of another digit.
double Characters(const Element& column) {
  constexpr double kMargins = 5.0 / 6;
  return column.Get("hidden") == "1"
             ? 0
             : std::round((std::stod(column.Get("width")) - kMargins) * 10) / 10;
}

class SheetReader {
 public:
  SheetReader(const Element& root, const Element& strings, const std::vector<CellFormat>& formats)
      : root_(root), strings_(strings), formats_(formats) {}

  void Read(XlsxSheet& sheet) const {
    for (const Element& column : root_["cols"].inner) {
      for (int i = column.Number("min"); i <= column.Number("max"); ++i) {
        sheet.column_widths[i] = Characters(column);
        if (!column.Get("style").empty()) {
          sheet.column_formats[i] = formats_.at(column.Number("style"));
        }
      }
    }
    for (const Element& row : root_["sheetData"].inner) {
      if (!row.Get("ht").empty()) {
        sheet.row_heights[row.Number("r")] = std::stod(row.Get("ht"));
      }
      for (const Element& cell : row.inner) {
        sheet.cells[PlaceOf(cell.Get("r"))] = ReadCell(cell);
      }
    }
    for (const Element& merged : root_["mergeCells"].inner) {
      sheet.merged.push_back(merged.Get("ref"));
    }
    for (const Element& above : root_["rowBreaks"].inner) {
      sheet.page_breaks.push_back(above.Number("id") + 1);
    }
    ReadView(sheet);
  }

 private:
  Cell ReadCell(const Element& element) const {
    Cell cell;
    cell.format = formats_.at(element.Number("s"));
    if (element.Get("t") == "s") {
      SetText(cell, strings_.inner.at(std::stoul(element["v"].text)));
    } else if (element.Has("v")) {
      cell.value = std::stod(element["v"].text);
    }
    return cell;
  }

  void ReadView(XlsxSheet& sheet) const {
    const Element& view = root_["sheetViews"]["sheetView"];
    sheet.gridlines = view.Get("showGridLines") != "0";
    sheet.active = view.Get("tabSelected") == "1";
    sheet.selected = view["selection"].Get("activeCell", "A1");
    sheet.header = root_["headerFooter"]["oddHeader"].text;
    sheet.footer = root_["headerFooter"]["oddFooter"].text;
    for (const auto& [name, inches] : root_["pageMargins"].attributes) {
      sheet.margins[name] = std::stod(inches);
    }
    sheet.landscape = root_["pageSetup"].Get("orientation") == "landscape";
    sheet.ignored = root_["ignoredErrors"]["ignoredError"].Get("sqref");
  }

  const Element& root_;
  const Element& strings_;
  const std::vector<CellFormat>& formats_;
};

/// The block of whole cells that a drawing covers.
CellBlock BlockOf(const Element& anchor) {
  const auto number = [&](const char* end, const char* axis) {
    return std::stoi(anchor[end][axis].text);
  };
  for (const char* offset : {"colOff", "rowOff"}) {
    EXPECT_EQ(number("from", offset), 0) << "a drawing that begins within a cell";
    EXPECT_EQ(number("to", offset), 0) << "a drawing that ends within a cell";
  }
  return {{number("from", "row") + 1, number("from", "col") + 1},
          {number("to", "row"), number("to", "col")}};
}

}  // namespace

Cell XlsxSheet::At(std::string_view address) const {
  const auto found = cells.find(PlaceOf(address));
  return found == cells.end() ? Cell() : found->second;
}

std::string XlsxSheet::Text(std::string_view address) const {
  const Cell cell = At(address);
  if (const auto* number = std::get_if<double>(&cell.value)) {
    return QString::number(*number).toStdString();
  }
  const auto* text = std::get_if<std::string>(&cell.value);
  return text == nullptr ? "" : *text;
}

XlsxFile::XlsxFile(const std::string& path) : parts_(Unzipped(path)) {
  const Element book = Root(Part("xl/workbook.xml"));
  const Element strings =
      Part("xl/sharedStrings.xml").empty() ? Element() : Root(Part("xl/sharedStrings.xml"));
  const std::vector<CellFormat> formats = Formats(Root(Part("xl/styles.xml")));
  int drawings = 0;
  for (const Element& told : book["sheets"].inner) {
    const std::string number = std::to_string(sheets_.size() + 1);
    const Element root = Root(Part("xl/worksheets/sheet" + number + ".xml"));
    XlsxSheet& sheet = sheets_.emplace_back();
    sheet.name = told.Get("name");
    SheetReader(root, strings, formats).Read(sheet);
    if (root.Has("drawing")) {
      const std::string part = "xl/drawings/drawing" + std::to_string(++drawings) + ".xml";
      for (const Element& anchor : Root(Part(part)).inner) {
        sheet.drawings.push_back(BlockOf(anchor));
      }
    }
  }
}

std::vector<std::string> XlsxFile::SheetNames() const {
  std::vector<std::string> names;
  for (const XlsxSheet& sheet : sheets_) {
    names.push_back(sheet.name);
  }
  return names;
}

XlsxSheet XlsxFile::Sheet(std::string_view name) const {
  for (const XlsxSheet& sheet : sheets_) {
    if (sheet.name == name) {
      return sheet;
    }
  }
  ADD_FAILURE() << "no sheet " << name;
  return {};
}

std::string XlsxFile::Part(const std::string& name) const {
  const auto found = parts_.find(name);
  return found == parts_.end() ? "" : found->second;
}

}  // namespace velmar::test
