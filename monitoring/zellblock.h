#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace polarkreis {

/// A block of cells, row by row.
using Zellblock = std::vector<std::vector<std::string>>;

/// The block as text for the clipboard: tab between cells, carriage return between rows. A cell
/// that holds one of these, a line feed or a quote at its beginning stands in quotes, inner quotes
/// twice, as spreadsheets do it. Behind a last row of one empty cell stands a carriage return, too.
std::string Block_Text(const Zellblock& block);

/// The cells of a text from the clipboard, this program's or a spreadsheet's: rows end with CR, LF
/// or CR LF, and the last line end adds no row. An empty text has no rows.
Zellblock Text_Block(std::string_view text);

}  // namespace polarkreis
