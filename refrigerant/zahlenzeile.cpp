#include "refrigerant/zahlenzeile.h"

#include <cmath>
#include <string_view>

#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {
namespace {

bool ist_ziffer(char c) {
  return c >= '0' && c <= '9';
}

// `Wert` gives 0 for a text without a number; a table must tell this from a 0 that was written.
bool beginnt_mit_zahl(std::string_view text) {
  const bool komma_ist_punkt = text.find('.') == std::string_view::npos;
  text = links_getrimmt(text);
  if (!text.empty() && (text[0] == '+' || text[0] == '-')) text.remove_prefix(1);
  if (text.empty()) return false;
  if (ist_ziffer(text[0])) return true;
  const bool punkt = text[0] == '.' || (text[0] == ',' && komma_ist_punkt);
  return punkt && text.size() > 1 && ist_ziffer(text[1]);
}

}  // namespace

Zeilenstand zahlen_lesen(ItemLeser& leser, std::span<double> werte) {
  bool nur_leere = true;
  std::string_view item;
  for (double& wert : werte) {
    if (!leser.lies_blick(item)) return nur_leere ? Zeilenstand::ende : Zeilenstand::bruch;
    if (item.empty() && nur_leere) continue;  // blank lines at the file's end are no broken row
    if (nur_leere && &wert != werte.data()) return Zeilenstand::bruch;
    nur_leere = false;
    if (!beginnt_mit_zahl(item)) return Zeilenstand::bruch;
    wert = Wert(item);
    if (!std::isfinite(wert)) return Zeilenstand::bruch;
  }
  return nur_leere ? Zeilenstand::bruch : Zeilenstand::voll;
}

}  // namespace polarkreis
