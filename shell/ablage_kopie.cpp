#include <time.h>

#include <algorithm>

#include "shell/ablage.h"

namespace polarkreis {

namespace {

/// Clocks of file systems tick in steps of up to 10 ms here; a change within the same tick leaves
/// no trace in a file's times.
constexpr std::int64_t Koernung_ns = 50'000'000;

}  // namespace

bool laenger_unveraendert(const Dateistand& stand) {
  if (!stand.da) return true;
  timespec jetzt{};
  ::clock_gettime(CLOCK_REALTIME, &jetzt);
  const std::int64_t jetzt_ns =
      static_cast<std::int64_t>(jetzt.tv_sec) * 1'000'000'000 + jetzt.tv_nsec;
  return std::max(stand.geaendert_ns, stand.status_ns) < jetzt_ns - Koernung_ns;
}

Ablage::Pruefmarken Ablage::pruefmarken() {
  if (schrittfolgen_ == 0) neuer_schritt();
  return gueltig_;
}

void Ablage::neuer_schritt() {
  gueltig_.schritt = ++marken_;
  if (!wache_ || wache_->vielleicht_geaendert()) gueltig_.wache = ++marken_;
}

/// What this program writes itself takes effect at once, also within a step.
void Ablage::alles_pruefen() {
  gueltig_.schritt = ++marken_;
  gueltig_.wache = ++marken_;
}

void Ablage::setze_wache(std::unique_ptr<Aenderungswache> wache) {
  wache_ = std::move(wache);
  alles_pruefen();
}

Schrittfolge::Schrittfolge(Ablage& ablage) : ablage_(ablage) {
  if (ablage_.schrittfolgen_++ == 0) ablage_.neuer_schritt();
}

Schrittfolge::~Schrittfolge() {
  --ablage_.schrittfolgen_;
}

void Schrittfolge::naechster() {
  ablage_.neuer_schritt();
}

}  // namespace polarkreis
