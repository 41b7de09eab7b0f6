#include "platform/arbeitsmappe_xlsx.h"

#include <zip.h>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "platform/xlsx_blatt.h"
#include "platform/xml.h"

namespace polarkreis {

namespace {

constexpr std::size_t Hoechstgroesse_Teil = std::size_t{192} << 20;
constexpr const char* Arbeitsmappenteil = "xl/workbook.xml";
constexpr const char* Beziehungsteil = "xl/_rels/workbook.xml.rels";

struct Zipschluss {
  void operator()(zip_t* archiv) const { ::zip_discard(archiv); }
};
struct Dateischluss {
  void operator()(zip_file_t* datei) const { ::zip_fclose(datei); }
};

class Archiv {
 public:
  /// The bytes must live as long as the archive.
  explicit Archiv(std::string_view bytes) {
    zip_source_t* quelle = ::zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr);
    if (quelle == nullptr) return;
    archiv_.reset(::zip_open_from_source(quelle, ZIP_RDONLY, nullptr));
    if (!archiv_) ::zip_source_free(quelle);
  }
  explicit operator bool() const { return archiv_ != nullptr; }

  bool hat(const std::string& name) const {
    return ::zip_name_locate(archiv_.get(), name.c_str(), ZIP_FL_NOCASE) >= 0;
  }
  /// The content of a part: nothing for one that is absent, damaged or, whatever the archive says
  /// of its size, too large.
  std::optional<std::string> teil(const std::string& name) const {
    const std::unique_ptr<zip_file_t, Dateischluss> datei(
        ::zip_fopen(archiv_.get(), name.c_str(), ZIP_FL_NOCASE));
    if (!datei) return std::nullopt;
    std::string inhalt;
    std::array<char, 65536> puffer;
    for (;;) {
      const zip_int64_t n = ::zip_fread(datei.get(), puffer.data(), puffer.size());
      if (n == 0) return inhalt;
      if (n < 0 || inhalt.size() + static_cast<std::size_t>(n) > Hoechstgroesse_Teil)
        return std::nullopt;
      inhalt.append(puffer.data(), static_cast<std::size_t>(n));
    }
  }

 private:
  std::unique_ptr<zip_t, Zipschluss> archiv_;
};

/// The targets of the workbook: its first worksheet, and the shared parts.
struct Ziele {
  std::string Blatt = "xl/worksheets/sheet1.xml";
  std::string Texte = "xl/sharedStrings.xml";
  std::string Stile = "xl/styles.xml";
};

/// A target as it stands in the archive: relative to the workbook, or from the archive's root.
std::string Teilname(std::string_view ziel) {
  return ziel.starts_with('/') ? std::string(ziel.substr(1)) : "xl/" + std::string(ziel);
}

/// The identifiers of the workbook's sheets, in their order.
std::vector<std::string> Blattkennungen(const Archiv& archiv) {
  std::vector<std::string> kennungen;
  xml::Dokument mappe;
  std::string grund;
  if (!mappe.lies(archiv.teil(Arbeitsmappenteil).value_or(""), grund)) return kennungen;
  for (const auto& blatt : xml::kind(mappe.wurzel(), "sheets").children())
    for (const auto& attribut : blatt.attributes())
      if (std::string_view(attribut.name()) != "id" && xml::lokal(attribut.name()) == "id")
        kennungen.emplace_back(attribut.value());
  return kennungen;
}

Ziele Ziele_von(const Archiv& archiv) {
  Ziele ziele;
  xml::Dokument beziehungen;
  std::string grund;
  if (!beziehungen.lies(archiv.teil(Beziehungsteil).value_or(""), grund)) return ziele;
  const auto kennungen = Blattkennungen(archiv);
  std::size_t vorn = kennungen.size();  // place of the sheet found so far
  for (const auto& beziehung : beziehungen.wurzel().children()) {
    const std::string_view art = beziehung.attribute("Type").value();
    const std::string name = Teilname(beziehung.attribute("Target").value());
    if (art.ends_with("/sharedStrings")) ziele.Texte = name;
    if (art.ends_with("/styles")) ziele.Stile = name;
    if (!art.ends_with("/worksheet")) continue;
    const std::string_view kennung = beziehung.attribute("Id").value();
    const auto platz = static_cast<std::size_t>(
        std::find(kennungen.begin(), kennungen.end(), kennung) - kennungen.begin());
    if (platz < vorn) ziele.Blatt = name;
    vorn = std::min(vorn, platz);
  }
  return ziele;
}

}  // namespace

std::unique_ptr<Arbeitsmappe> lies_xlsx(std::string_view bytes, std::string& grund) {
  const Archiv archiv(bytes);
  if (!archiv) {
    grund = "it is damaged.";
    return nullptr;
  }
  const Ziele ziele = Ziele_von(archiv);
  Xlsxteile teile;
  for (const auto& [name, inhalt] : {std::pair{&ziele.Blatt, &teile.Blatt},
                                     {&ziele.Texte, &teile.Texte},
                                     {&ziele.Stile, &teile.Stile}}) {
    auto gelesen = archiv.teil(*name);
    if (!gelesen && (inhalt == &teile.Blatt || archiv.hat(*name))) {
      grund = "a part of it is missing, damaged or too large.";
      return nullptr;
    }
    *inhalt = std::move(gelesen).value_or("");
  }
  return Blatt_aus_Teilen(std::move(teile), grund);
}

}  // namespace polarkreis
