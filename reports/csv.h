#pragma once

#include <string>

#include "reports/tabelle.h"

namespace polarkreis {

/// How a CSV text parts its cells and writes its numbers.
struct Csv_Form {
  char Trenner = ',';
  char Dezimalzeichen = '.';
};
/// What scripts and English spreadsheets read.
inline constexpr Csv_Form Csv_Komma{',', '.'};
/// What a spreadsheet expects where the comma is the decimal sign.
inline constexpr Csv_Form Csv_Semikolon{';', ','};

/// The table as CSV text: UTF-8 with a byte order mark, without which a spreadsheet takes the text
/// for an old code page and spoils "°C"; lines end with CR LF. A text stands in double quotes where
/// it holds a separator, a quote or a line end, or blanks at its ends; a quote in it is doubled. A
/// text that reads as a number is quoted, too. An empty number is an empty cell.
std::string als_Csv(const Tabelle& tabelle, const Csv_Form& form = Csv_Komma);

}  // namespace polarkreis
