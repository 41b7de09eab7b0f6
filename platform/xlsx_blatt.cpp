#include "platform/xlsx_blatt.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <set>
#include <utility>
#include <vector>

#include "platform/xml.h"
#include "platform/zeitwert.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

using pugi::xml_node;

constexpr std::size_t Hoechstmenge_Text = std::size_t{128} << 20;

template <class T>
T zahl_oder(std::string_view text, T sonst) {
  text = getrimmt(text);
  T wert{};
  const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
  return fehler == std::errc{} && ende == text.data() + text.size() ? wert : sonst;
}

// --- Shared texts

/// A text, plain or in runs of different fonts; what tells the pronunciation doesn't belong to it.
std::string text_von(const xml_node& knoten) {
  std::string text;
  for (const xml_node kind : knoten.children()) {
    const std::string_view name = xml::lokal(kind.name());
    if (name == "t") text += kind.text().get();
    if (name == "r") text += xml::kind(kind, "t").text().get();
  }
  return text;
}

std::vector<std::string> Texte_von(const xml_node& wurzel) {
  std::vector<std::string> texte;
  for (const xml_node kind : wurzel.children())
    if (xml::lokal(kind.name()) == "si") texte.push_back(text_von(kind));
  return texte;
}

// --- Styles

constexpr bool ist_Zeitformat(int nummer) {
  return (nummer >= 14 && nummer <= 22) || (nummer >= 27 && nummer <= 36) ||
         (nummer >= 45 && nummer <= 47) || (nummer >= 50 && nummer <= 58);
}

bool nur_Zeitzeichen(std::string_view text, std::string_view zeichen) {
  return !text.empty() && text.find_first_not_of(zeichen) == std::string_view::npos;
}

/// True for a format of dates or clock times: it has letters of them outside quotes and brackets,
/// or an elapsed time in brackets.
bool ist_Zeitformat(std::string_view code) {
  for (std::size_t i = 0; i < code.size(); ++i) {
    const char c = code[i];
    if (c == '\\' || c == '_' || c == '*') {
      ++i;  // the next character stands for itself
    } else if (c == '"' || c == '[') {
      const std::size_t ende = code.find(c == '[' ? ']' : '"', i + 1);
      if (ende == std::string_view::npos) return false;
      if (c == '[' && nur_Zeitzeichen(code.substr(i + 1, ende - i - 1), "hmsHMS")) return true;
      i = ende;
    } else if (nur_Zeitzeichen(code.substr(i, 1), "dmyhsDMYHS")) {
      return true;
    }
  }
  return false;
}

/// For each style of cells whether it shows a date or a clock time.
std::vector<bool> Zeitstile_von(const xml_node& wurzel) {
  std::set<int> eigene;
  for (const xml_node format : xml::kind(wurzel, "numFmts").children())
    if (ist_Zeitformat(std::string_view(format.attribute("formatCode").value())))
      eigene.insert(format.attribute("numFmtId").as_int());
  std::vector<bool> stile;
  for (const xml_node stil : xml::kind(wurzel, "cellXfs").children()) {
    const int nummer = stil.attribute("numFmtId").as_int();
    stile.push_back(ist_Zeitformat(nummer) || eigene.contains(nummer));
  }
  return stile;
}

// --- Cells

class Blattleser {
 public:
  Blattleser(std::vector<std::string> texte, std::vector<bool> zeitstile)
      : texte_(std::move(texte)), zeitstile_(std::move(zeitstile)) {}

  /// Rows and cells may name their place; one that doesn't follows the one before. False if the
  /// texts come to too much: a long one may be shared by any number of cells.
  bool lies(const xml_node& daten, Arbeitsmappe& mappe) {
    int zeile = 0;
    for (const xml_node reihe : daten.children()) {
      zeile = zahl_oder(reihe.attribute("r").value(), zeile + 1);
      if (zeile < 1 || zeile > Arbeitsmappe::Hoechstzeile) break;
      lies_Reihe(reihe, zeile, mappe);
      if (textmenge_ > Hoechstmenge_Text) return false;
    }
    return true;
  }

 private:
  void lies_Reihe(const xml_node& reihe, int zeile, Arbeitsmappe& mappe) {
    int spalte = 0;
    for (const xml_node zelle : reihe.children()) {
      const int genannt = Zellort_von(zelle.attribute("r").value()).spalte;
      spalte = genannt > 0 ? genannt : spalte + 1;
      Zellinhalt neu = inhalt(zelle);
      if (const auto* text = std::get_if<std::string>(&neu)) textmenge_ += text->size();
      if (textmenge_ > Hoechstmenge_Text) return;
      mappe.setze(zeile, spalte, std::move(neu));
    }
  }

  Zellinhalt inhalt(const xml_node& zelle) const {
    const std::string_view art = zelle.attribute("t").value();
    if (art == "inlineStr") return text_von(xml::kind(zelle, "is"));
    const xml_node wert = xml::kind(zelle, "v");
    const std::string_view text = wert.text().get();
    if (!wert || art == "e") return {};
    if (art == "s") return geteilter_Text(text);
    if (art == "str") return std::string(text);
    if (art == "d") return Zeit(text);
    return Zahl(text, zelle.attribute("s").as_uint());
  }

  Zellinhalt geteilter_Text(std::string_view nummer) const {
    const auto n = zahl_oder<std::size_t>(nummer, texte_.size());
    if (n >= texte_.size()) return {};
    return texte_[n];
  }

  static Zellinhalt Zeit(std::string_view text) {
    if (const auto zeit = Zeitwert_von(text)) return *zeit;
    return std::string(text);
  }

  Zellinhalt Zahl(std::string_view text, unsigned stil) const {
    const double zahl = zahl_oder<double>(text, std::nan(""));
    if (!std::isfinite(zahl)) return {};
    if (stil < zeitstile_.size() && zeitstile_[stil]) return Zeitwert{zahl};
    return zahl;
  }

  std::vector<std::string> texte_;
  std::vector<bool> zeitstile_;
  std::size_t textmenge_ = 0;
};

/// The list made of a part; an absent part gives an empty one.
template <class Liste>
bool lies_Teil(std::string text, Liste (*aus)(const xml_node&), Liste& liste, std::string& grund) {
  if (text.empty()) return true;
  xml::Dokument dokument;
  if (!dokument.lies(std::move(text), grund)) return false;
  liste = aus(dokument.wurzel());
  return true;
}

}  // namespace

std::unique_ptr<Arbeitsmappe> Blatt_aus_Teilen(Xlsxteile teile, std::string& grund) {
  std::vector<std::string> texte;
  std::vector<bool> zeitstile;
  if (!lies_Teil(std::move(teile.Texte), Texte_von, texte, grund)) return nullptr;
  if (!lies_Teil(std::move(teile.Stile), Zeitstile_von, zeitstile, grund)) return nullptr;
  xml::Dokument blatt;
  if (!blatt.lies(std::move(teile.Blatt), grund)) return nullptr;
  const xml_node daten = xml::kind(blatt.wurzel(), "sheetData");
  if (!daten) {
    grund = "it holds no worksheet.";
    return nullptr;
  }
  auto mappe = std::make_unique<Arbeitsmappe>();
  if (Blattleser(std::move(texte), std::move(zeitstile)).lies(daten, *mappe)) return mappe;
  grund = "its texts are too long.";
  return nullptr;
}

}  // namespace polarkreis
