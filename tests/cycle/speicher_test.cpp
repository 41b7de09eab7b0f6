#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "cycle/kreis.h"
#include "support/kaeltemittel_umgebung.h"

namespace {
std::size_t anforderungen = 0;  // of this program; its one thread counts them
}

// Inlined, the compiler would see malloc and delete meet.
[[gnu::noinline]] void* operator new(std::size_t groesse) {
  ++anforderungen;
  if (void* p = std::malloc(groesse ? groesse : 1)) return p;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* p) noexcept {
  std::free(p);
}
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept {
  std::free(p);
}

namespace {

using namespace polarkreis;

TEST(KreisPunkt, AllocatesNothingWithinAStep) {
  for (const char* name : {"R22", "R404A", "METHAN", "HFO1234YF", "R744"}) {
    KaeltemittelUmgebung u(name);
    Kreis kreis(u.km);
    KMZustand& z = u.km.z;
    z.dT_sh = 6;
    const auto schritt = [&] {
      double dT_sc = 2;
      kreis.KreisPunkt(-10, 35, 0, dT_sc);
      const double m = kreis.KM_Massenstrom(0, 50);
      kreis.Verd_Leistung(z.p0, z.pc, z.T0, z.Tc, m, 6, 0, z.h_vc, z.h_v0, 0, 0);
      u.km.Sat_TausP(z.p0, 177);
      u.km.KM_Grenzen();
    };
    Schrittfolge schritte(u.ablage);
    schritt();
    const std::size_t vorher = anforderungen;
    for (int i = 0; i < 10; ++i) schritt();
    EXPECT_EQ(anforderungen, vorher) << name;
  }
}

}  // namespace
