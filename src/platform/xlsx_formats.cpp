#include "platform/xlsx_formats.h"

#include <functional>

#include "platform/ansi.h"
#include "platform/error.h"

namespace velmar {

namespace {

/// The colour with red in the highest byte. The library takes 0 for no colour and has a number of
/// its own for black.
lxw_color_t FileColour(int colour) {
  const auto bgr = static_cast<lxw_color_t>(colour);
  const lxw_color_t rgb = (bgr & 0xFFU) << 16U | (bgr & 0xFF00U) | (bgr >> 16U & 0xFFU);
  return rgb == 0 ? static_cast<lxw_color_t>(LXW_COLOR_BLACK) : rgb;
}

std::uint8_t FileBorder(int weight) {
  switch (weight) {
    case 0:
      return LXW_BORDER_NONE;
    case xl::kHairline:
      return LXW_BORDER_HAIR;
    case xl::kMedium:
      return LXW_BORDER_MEDIUM;
    default:
      return LXW_BORDER_THIN;
  }
}

void SetFont(lxw_format* to, const CellFont& font) {
  format_set_font_name(to, FileText(font.name).c_str());
  format_set_font_size(to, font.size);
  if (font.bold) {
    format_set_bold(to);
  }
  if (font.italic) {
    format_set_italic(to);
  }
  if (font.underline) {
    format_set_underline(to, LXW_UNDERLINE_SINGLE);
  }
}

void SetAlignment(lxw_format* to, const CellFormat& format) {
  switch (format.horizontal) {
    case xl::kLeft:
      format_set_align(to, LXW_ALIGN_LEFT);
      break;
    case xl::kCenter:
      format_set_align(to, LXW_ALIGN_CENTER);
      break;
    case xl::kRight:
      format_set_align(to, LXW_ALIGN_RIGHT);
      break;
    default:
      break;
  }
  if (format.vertical == xl::kCenter) {
    format_set_align(to, LXW_ALIGN_VERTICAL_CENTER);
  }
  if (format.wrap) {
    format_set_text_wrap(to);
  }
}

}  // namespace

std::string FileText(std::string_view text) {
  std::string clean(text);
  for (char& c : clean) {
    if (static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\t') {
      c = ' ';
    }
  }
  return Utf8FromAnsi(clean);
}

void MindWriter(lxw_error error) {
  if (error != LXW_NO_ERROR) {
    throw RunTimeError(ErrorNumber::kWorkbookRefused, lxw_strerror(error));
  }
}

std::size_t XlsxFormats::Hash::operator()(const CellFormat& format) const {
  std::size_t hash = std::hash<std::string>()(format.font.name);
  const auto mix = [&](auto value) { hash = hash * 31 + std::hash<decltype(value)>()(value); };
  mix(format.font.size);
  mix(format.font.colour);
  mix(format.font.bold);
  mix(format.interior.value_or(-1));
  for (const int weight : {format.borders.left, format.borders.top, format.borders.right,
                           format.borders.bottom, format.horizontal}) {
    mix(weight);
  }
  return hash;
}

XlsxFormats::XlsxFormats(lxw_workbook* file) : file_(file) {
  // The first format is that of cells without one. Its letters keep the colour of the application,
  // so that it stays another one than those made below, which all tell their colour.
  SetFont(STAILQ_FIRST(file->formats), CellFont());
}

lxw_format* XlsxFormats::Of(const CellFormat& format) {
  lxw_format*& made = made_[format];
  if (made != nullptr) {
    return made;
  }
  made = workbook_add_format(file_);
  SetFont(made, format.font);
  format_set_font_color(made, FileColour(format.font.colour));
  if (format.interior) {
    format_set_pattern(made, LXW_PATTERN_SOLID);
    format_set_bg_color(made, FileColour(*format.interior));
  }
  format_set_left(made, FileBorder(format.borders.left));
  format_set_top(made, FileBorder(format.borders.top));
  format_set_right(made, FileBorder(format.borders.right));
  format_set_bottom(made, FileBorder(format.borders.bottom));
  SetAlignment(made, format);
  if (!format.number_format.empty()) {
    format_set_num_format(made, FileText(format.number_format).c_str());
  }
  return made;
}

}  // namespace velmar
