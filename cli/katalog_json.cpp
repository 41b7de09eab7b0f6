#include "katalog_json.h"

namespace polarkreis::cli {

namespace {

Json typ_json(const KompSuch::Ergebnis& e) {
  return e.Typ ? Json(*e.Typ) : Json();
}

Json bauteil_json(const Bauteil& b) {
  return {{"record", b.Satz}, {"fields", b.Felder}};
}

}  // namespace

Json bauteile_json(const std::vector<Bauteil>& bauteile) {
  Json alle = Json::array();
  for (const Bauteil& b : bauteile) alle.push_back(bauteil_json(b));
  return alle;
}

Json kataloglist_json(const KompSuch& suche) {
  Json alle = Json::array();
  for (const KompSuch::Katalogeintrag& k : suche.Kataloglist)
    alle.push_back({{"code", k.code}, {"type", k.Typ}, {"text", k.Text}});
  return alle;
}

Json ergebnisse_json(const KompSuch& suche) {
  Json alle = Json::array();
  for (const KompSuch::Ergebnis& e : suche.Ergebnisse)
    alle.push_back({{"kind", suche.Suchart},
                    {"code", e.zeile.code},
                    {"type", typ_json(e)},
                    {"maker", e.zeile.Hersteller},
                    {"catalogue", e.zeile.Katalogtext},
                    {"start", e.zeile.Anfang},
                    {"hidden", e.verborgen},
                    {"missing", e.fehlt},
                    {"found", !e.Treffer.empty()}});
  return alle;
}

Json treffer_json(const KompSuch& suche) {
  Json alle = Json::array();
  for (const KompSuch::Ergebnis& e : suche.Ergebnisse)
    for (const Bauteil& b : e.Treffer) {
      alle.push_back({{"kind", suche.Suchart},
                      {"code", e.zeile.code},
                      {"type", typ_json(e)},
                      {"maker", e.zeile.Hersteller},
                      {"catalogue", e.zeile.Katalogtext}});
      alle.back().update(bauteil_json(b));
    }
  return alle;
}

Json mittelliste_json(const std::vector<Mittelzeile>& liste) {
  Json alle = Json::array();
  for (const Mittelzeile& z : liste)
    alle.push_back(
        {{"list", alle.size() + 1}, {"file", z.Datei}, {"text", z.Text}, {"start", z.Anfang}});
  return alle;
}

}  // namespace polarkreis::cli
