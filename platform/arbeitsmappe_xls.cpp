#include "platform/arbeitsmappe_xls.h"

#include <freexl.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "platform/abgeschirmt.h"
#include "platform/zeitwert.h"

// The library trusts the file's own counts and chains too much, so it works in a process of its
// own, which hands over the sheet's cells: for each its row, column, kind and content.

namespace polarkreis {

namespace {

enum class Art : char { Zahl = 'n', Zeit = 'z', Text = 't' };

constexpr unsigned Hoechstzeilen = 65536;  // the format's own bound

/// What the child tells when the library gives up.
constexpr std::string_view Verweigert = "!";
constexpr std::string_view Gelesen = "+";

/// An open file of the library.
class Mappe {
 public:
  explicit Mappe(const std::string& pfad) : fehler_(::freexl_open(pfad.c_str(), &griff_)) {}
  ~Mappe() { ::freexl_close(griff_); }
  Mappe(const Mappe&) = delete;
  Mappe& operator=(const Mappe&) = delete;
  bool waehle_erstes_Blatt(unsigned& zeilen, unsigned short& spalten) const {
    return fehler_ == FREEXL_OK && ::freexl_select_active_worksheet(griff_, 0) == FREEXL_OK &&
           ::freexl_worksheet_dimensions(griff_, &zeilen, &spalten) == FREEXL_OK;
  }
  FreeXL_CellValue zelle(unsigned zeile, unsigned short spalte) const {
    FreeXL_CellValue wert{};
    if (::freexl_get_cell_value(griff_, zeile, spalte, &wert) != FREEXL_OK)
      wert.type = FREEXL_CELL_NULL;
    return wert;
  }

 private:
  const void* griff_ = nullptr;
  int fehler_;
};

// --- The child's side

template <class T>
void anhaengen(std::string& target, T wert) {
  char bytes[sizeof wert];
  std::memcpy(bytes, &wert, sizeof wert);
  target.append(bytes, sizeof wert);
}

void Zahl_anhaengen(std::string& target, Art art, double zahl) {
  target += static_cast<char>(art);
  anhaengen(target, zahl);
}

void Text_anhaengen(std::string& target, std::string_view text) {
  target += static_cast<char>(Art::Text);
  anhaengen(target, static_cast<std::uint32_t>(text.size()));
  target += text;
}

void Inhalt_anhaengen(std::string& target, const FreeXL_CellValue& wert) {
  const auto text = [&] { return wert.value.text_value == nullptr ? "" : wert.value.text_value; };
  switch (wert.type) {
    case FREEXL_CELL_INT:
      return Zahl_anhaengen(target, Art::Zahl, wert.value.int_value);
    case FREEXL_CELL_DOUBLE:
      return Zahl_anhaengen(target, Art::Zahl, wert.value.double_value);
    case FREEXL_CELL_DATE:
    case FREEXL_CELL_DATETIME:
    case FREEXL_CELL_TIME:
      if (const auto zeit = Zeitwert_von(text()))
        return Zahl_anhaengen(target, Art::Zeit, zeit->Tage);
      return Text_anhaengen(target, text());
    default:
      return Text_anhaengen(target, text());
  }
}

std::string Blatt_als_Bytes(const std::string& pfad) {
  const Mappe mappe(pfad);
  unsigned zeilen = 0;
  unsigned short spalten = 0;
  if (!mappe.waehle_erstes_Blatt(zeilen, spalten)) return std::string(Verweigert);
  std::string bytes(Gelesen);
  for (unsigned zeile = 0; zeile < std::min(zeilen, Hoechstzeilen); ++zeile) {
    for (unsigned short spalte = 0; spalte < spalten; ++spalte) {
      const FreeXL_CellValue wert = mappe.zelle(zeile, spalte);
      if (wert.type == FREEXL_CELL_NULL) continue;
      anhaengen(bytes, static_cast<std::uint16_t>(zeile));
      anhaengen(bytes, static_cast<std::uint16_t>(spalte));
      Inhalt_anhaengen(bytes, wert);
    }
  }
  return bytes;
}

// --- The parent's side

class Zellenleser {
 public:
  explicit Zellenleser(std::string_view bytes) : rest_(bytes) {}
  bool ende() const { return rest_.empty(); }

  template <class T>
  T nimm() {
    T wert{};
    if (rest_.size() < sizeof wert) {
      rest_ = {};
      return wert;
    }
    std::memcpy(&wert, rest_.data(), sizeof wert);
    rest_.remove_prefix(sizeof wert);
    return wert;
  }
  std::string nimm_Text() {
    const auto laenge = nimm<std::uint32_t>();
    std::string text(rest_.substr(0, laenge));
    rest_.remove_prefix(text.size());
    return text;
  }

 private:
  std::string_view rest_;
};

Zellinhalt nimm_Inhalt(Zellenleser& leser) {
  const char art = leser.nimm<char>();
  if (art == static_cast<char>(Art::Text)) return leser.nimm_Text();
  const double zahl = leser.nimm<double>();
  if (!std::isfinite(zahl)) return {};
  if (art == static_cast<char>(Art::Zeit)) return Zeitwert{zahl};
  return zahl;
}

std::unique_ptr<Arbeitsmappe> aus_Bytes(std::string_view bytes) {
  auto mappe = std::make_unique<Arbeitsmappe>();
  for (Zellenleser leser(bytes); !leser.ende();) {
    const auto zeile = leser.nimm<std::uint16_t>();
    const auto spalte = leser.nimm<std::uint16_t>();
    mappe->setze(zeile + 1, spalte + 1, nimm_Inhalt(leser));
  }
  return mappe;
}

}  // namespace

std::unique_ptr<Arbeitsmappe> lies_xls(const std::string& pfad, std::string& grund) {
  const auto bytes = abgeschirmt([&pfad] { return Blatt_als_Bytes(pfad); });
  if (bytes && bytes->starts_with(Gelesen)) return aus_Bytes(std::string_view(*bytes).substr(1));
  grund = bytes ? "it is damaged, protected by a password, or no worksheet."
                : "it is damaged beyond repair. Open it in your spreadsheet program and save it as "
                  ".xlsx.";
  return nullptr;
}

}  // namespace polarkreis
