#include <algorithm>

#include "monitoring/ftp_server.h"

namespace polarkreis {

namespace {

constexpr std::string_view kKeine_Daten = "No Data or Data Limit reached.";

/// The selection with its corners in order, inside the table.
ftp_server::Auswahl geordnet(const ftp_server::Auswahl& a) {
  return {std::max(std::min(a.Zeile, a.Zeile2), 1), std::max(std::min(a.Spalte, a.Spalte2), 1),
          std::min(std::max(a.Zeile, a.Zeile2), Register::Zeilen),
          std::min(std::max(a.Spalte, a.Spalte2), Register::Spalten)};
}

bool ist_eine_Zelle(const Zellblock& block) {
  return block.size() == 1 && block.front().size() == 1;
}

}  // namespace

void ftp_server::FTPSpreadText(int Zeile, int Spalte, std::string_view Text) {
  FTPSpread.setze(Zeile, Spalte, std::string(Text));
}

void ftp_server::FTPSpreadDelete() {
  const Auswahl a = geordnet(FTPSpread_Auswahl);
  for (int zeile = a.Zeile; zeile <= a.Zeile2; ++zeile)
    for (int spalte = a.Spalte; spalte <= a.Spalte2; ++spalte) FTPSpread.setze(zeile, spalte, "");
}

std::string ftp_server::FTPSpreadcopy() const {
  const Auswahl a = geordnet(FTPSpread_Auswahl);
  Zellblock block;
  for (int zeile = a.Zeile; zeile <= a.Zeile2; ++zeile) {
    std::vector<std::string>& zellen = block.emplace_back();
    for (int spalte = a.Spalte; spalte <= a.Spalte2; ++spalte)
      zellen.push_back(FTPSpread.zelle(zeile, spalte));
  }
  return Block_Text(block);
}

void ftp_server::FTPSpreadpaste(std::string_view Zwischenablage) {
  const Zellblock block = Text_Block(Zwischenablage);
  if (block.empty())
    return dialog_.zeige(kKeine_Daten, captions_.text(Caption::Fernueberwachung), Symbol::hinweis);
  const Auswahl a = geordnet(FTPSpread_Auswahl);
  if (ist_eine_Zelle(block)) {
    for (int zeile = a.Zeile; zeile <= a.Zeile2; ++zeile)
      for (int spalte = a.Spalte; spalte <= a.Spalte2; ++spalte)
        FTPSpread.setze(zeile, spalte, block.front().front());
    return;
  }
  std::size_t ausserhalb = 0;
  for (std::size_t z = 0; z < block.size(); ++z)
    for (std::size_t s = 0; s < block[z].size(); ++s) {
      const int zeile = a.Zeile + static_cast<int>(z), spalte = a.Spalte + static_cast<int>(s);
      if (zeile > Register::Zeilen || spalte > Register::Spalten) ++ausserhalb;
      FTPSpread.setze(zeile, spalte, block[z][s]);
    }
  if (ausserhalb > 0)
    ablage_.meldungen().melde(
        "paste", {}, std::to_string(ausserhalb) + " cells outside the register were left out");
}

}  // namespace polarkreis
