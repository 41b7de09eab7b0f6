#include "monitoring/route.h"

#include <cstddef>

#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr int kKeine = 0;

std::string route(const Captions& captions, int nummer) {
  if (nummer == kKeine) return captions.text(PedCap::Ohne);
  constexpr int kSMS1 = 1, kSMS2 = 2, kMail = 4, kFtp = 8;
  std::string text;
  const auto dazu = [&](int bit, std::string_view name) {
    if ((nummer & bit) == 0) return;
    if (!text.empty()) text += " + ";
    text += name;
  };
  dazu(kFtp, "ftp");
  dazu(kMail, "E-Mail");
  dazu(kSMS1, "SMS1");
  dazu(kSMS2, "SMS2");
  return text;
}

/// True for the word for none in another language.
bool heisst_keine(const Captions& captions, std::string_view text) {
  constexpr int zeile[] = {static_cast<int>(PedCap::Ohne)};
  for (const std::string_view sprache : Sprachen()) {
    if (sprache == captions.Sprache || !captions.vorhanden(sprache)) continue;
    const std::string hier =
        captions.Caption_Uebersetzen(Stamm::PEDcap, zeile, sprache, captions.Sprache, text);
    if (hier == captions.text(PedCap::Ohne)) return true;
  }
  return false;
}

int nummer(const Captions& captions, std::string_view text) {
  const std::string_view gesucht = getrimmt(text);
  if (gesucht.empty()) return Route_alle;
  for (int n = 0; n < Route_alle; ++n)
    if (getrimmt(route(captions, n)) == gesucht) return n;
  const bool keine =
      gleich(captions.text(PedCap::Ohne), gesucht) || heisst_keine(captions, gesucht);
  return keine ? kKeine : Route_alle;
}

}  // namespace

std::string Flag_find(const Captions& captions, std::string_view Text, int Richtung) {
  if (Richtung == 1) return std::to_string(nummer(captions, Text));
  const std::string_view ziffern = getrimmt(Text);
  const bool ist_Zahl = !ziffern.empty() && ziffern.front() >= '0' && ziffern.front() <= '9';
  const double zahl = Wert(ziffern);
  const bool bekannt = ist_Zahl && zahl < Route_alle && zahl == Int(zahl);
  return route(captions, bekannt ? static_cast<int>(zahl) : Route_alle);
}

std::vector<std::string> Routen(const Captions& captions) {
  std::vector<std::string> alle;
  for (int n = 0; n <= Route_alle; ++n) alle.push_back(route(captions, n));
  return alle;
}

}  // namespace polarkreis
