// The working copy: begun with each run, grown by a row at each sample, readable at any moment.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "diagnostics/messdatei_desk.h"

using namespace polarkreis;

namespace {

constexpr const char* Datei = "FM_diag.dat";
constexpr const char* Beiseite = "FM_diag 2026-01-02 12-00-00.fmd";
using Namen = std::vector<std::string>;

struct Laufdatei : testing::Test {
  MessdateiDesk desk;
  Messung& m = desk.m;
  Messdatei& datei = desk.datei;

  /// A sample as a run takes it: a new row 3, and the append.
  bool probe(int n) {
    m.Zeile_Ein(4, 1);
    desk.fuelle(3);
    m.DiaSpread.setze(3, 13, "sample " + std::to_string(n));
    return datei.Zeile_anhaengen();
  }
  /// The samples that the working copy holds.
  Namen proben(const char* name = Datei) {
    Messung gelesen;
    Messdatei(gelesen, desk.ablage, desk.captions, desk.dialog, desk.uhr).LoadDiaG(name);
    Namen alle;
    for (int zeile = 3; zeile <= gelesen.DiaSpread.letzte_gefuellte(); ++zeile)
      alle.push_back(gelesen.DiaSpread.text(zeile, 13));
    return alle;
  }
  std::string inhalt() const { return desk.ordner.lies(Datei); }
};

}  // namespace

TEST_F(Laufdatei, RunBeginsWithTheHeadingAndItsRowCountStaysOutOfTheTable) {
  m.Mess_Zeilen = 7;
  ASSERT_TRUE(datei.Lauf_beginnen());
  EXPECT_EQ(m.Mess_Zeilen, 7);
  m.Mess_Zeilen = Zeilen_unbekannt;
  ASSERT_TRUE(datei.SaveDiaG("head.fmd"));
  EXPECT_EQ(inhalt(), desk.ordner.lies("head.fmd"));
}

TEST_F(Laufdatei, SampleIsAppendedAsOneRowInTimeOrder) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  const std::string kopf = inhalt();
  m.DiaSpread.setze(3, 1, "12:00:05");
  m.DiaSpread.setze(3, 169, "a \"b\"");
  m.DiaSpread.setze(3, 170, "not stored");
  ASSERT_TRUE(datei.Zeile_anhaengen());
  std::string zeile = "\"12:00:05\"\r\n";
  for (int n = 2; n <= 168; ++n) zeile += "\"\"\r\n";
  zeile += "\"a \"\"b\"\"\"\r\n";
  EXPECT_EQ(inhalt(), kopf + zeile);
  m.DiaSpread.setze(3, 1, "12:00:10");
  ASSERT_TRUE(datei.Zeile_anhaengen());
  EXPECT_TRUE(inhalt().starts_with(kopf + zeile + "\"12:00:10\"\r\n"));
  EXPECT_EQ(inhalt().size(), kopf.size() + 2 * zeile.size());
}

TEST_F(Laufdatei, RowsComeBackOldestFirst) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  for (int n = 1; n <= 3; ++n) ASSERT_TRUE(probe(n));
  EXPECT_EQ(proben(), (Namen{"sample 1", "sample 2", "sample 3"}));
}

TEST_F(Laufdatei, RowsOfTheRunBeforeAreKeptBeside) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(probe(1));
  const std::string erster = inhalt();
  ASSERT_TRUE(datei.Lauf_beginnen());
  EXPECT_EQ(desk.dateien(".fmd"), Namen{Beiseite});
  EXPECT_EQ(desk.ordner.lies(Beiseite), erster);
  EXPECT_TRUE(proben().empty());
  ASSERT_TRUE(probe(2));
  EXPECT_EQ(proben(), Namen{"sample 2"});
}

TEST_F(Laufdatei, TakenNamesGetANumber) {
  for (int n = 1; n <= 4; ++n) {
    ASSERT_TRUE(datei.Lauf_beginnen());
    ASSERT_TRUE(probe(n));
  }
  EXPECT_EQ(desk.dateien(".fmd"),
            (Namen{"FM_diag 2026-01-02 12-00-00 2.fmd", "FM_diag 2026-01-02 12-00-00 3.fmd",
                   "FM_diag 2026-01-02 12-00-00.fmd"}));
  EXPECT_EQ(proben(Beiseite), Namen{"sample 1"});
  EXPECT_EQ(proben("FM_diag 2026-01-02 12-00-00 3.fmd"), Namen{"sample 3"});
}

TEST_F(Laufdatei, HeadingWithoutRowsIsNotKept) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(datei.Arbeitskopie_schreiben());  // rows in use, but empty
  ASSERT_TRUE(datei.Lauf_beginnen());
  EXPECT_TRUE(desk.dateien(".fmd").empty());
}

TEST_F(Laufdatei, CutOffRowAloneIsKeptToo) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  desk.ordner.schreib(Datei, inhalt() + "\"12:00:05\"\r\n\"2.5");
  ASSERT_TRUE(datei.Lauf_beginnen());
  EXPECT_EQ(desk.dateien(".fmd"), Namen{Beiseite});
}

TEST_F(Laufdatei, FolderOfTheWorkingCopyIsThatOfTheKeptFile) {
  datei.Arbeitskopie = desk.ordner.pfad("deep/run.dat");
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(probe(1));
  ASSERT_TRUE(datei.Lauf_beginnen());
  EXPECT_TRUE(desk.ordner.da(std::string("deep/") + Beiseite));
}

TEST_F(Laufdatei, JobWithoutAWorkingCopyWritesNone) {
  datei.Arbeitskopie = "";
  EXPECT_TRUE(datei.Lauf_beginnen());
  EXPECT_TRUE(probe(1));
  EXPECT_TRUE(datei.Arbeitskopie_schreiben());
  EXPECT_FALSE(desk.ordner.da(Datei));
}

TEST_F(Laufdatei, EndOfTheModuleWritesItWhole) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  for (int n = 1; n <= 3; ++n) ASSERT_TRUE(probe(n));
  ASSERT_TRUE(datei.Arbeitskopie_schreiben());
  EXPECT_EQ(proben(), (Namen{"sample 3", "sample 2", "sample 1"}));
  EXPECT_EQ(inhalt().find("65459"), std::string::npos);
  ASSERT_TRUE(datei.SaveDiaG("same.fmd"));
  EXPECT_EQ(inhalt(), desk.ordner.lies("same.fmd"));
}

TEST_F(Laufdatei, WorkingCopyThatIsTooLongIsKeptBeside) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  for (int n = 1; n <= 4; ++n) ASSERT_TRUE(probe(n));
  const std::string lauf = inhalt();
  datei.Hoechstzeilen = 3;
  EXPECT_EQ(datei.LoadDiaG(Datei).ueberzaehlig, 1);
  EXPECT_EQ(desk.ordner.lies(Beiseite), lauf);
  ASSERT_TRUE(datei.Arbeitskopie_schreiben());
  EXPECT_EQ(desk.dateien(".fmd"), Namen{Beiseite});
}

TEST_F(Laufdatei, AnswerNoKeepsTheWorkingCopyBeside) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  for (int n = 1; n <= 1001; ++n) {
    m.DiaSpread.setze(3, 2, std::to_string(n));
    datei.Anhaengen = Haltbarkeit::wiederholbar;
    ASSERT_TRUE(datei.Zeile_anhaengen());
  }
  const std::string lauf = inhalt();
  desk.dialog.antwort = false;
  const Messdatei::Ladung ladung = datei.LoadDiaG(Datei);
  EXPECT_TRUE(ladung.abgebrochen && ladung.gefragt && ladung.abgelehnt);
  EXPECT_EQ(desk.dialog.fragen, Namen{"Number of measurements Messpunkte =1001?"});
  EXPECT_EQ(desk.dateien(".fmd"), Namen{Beiseite});
  EXPECT_EQ(desk.ordner.lies(Beiseite), lauf);

  // What is kept need not be kept again.
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(datei.Arbeitskopie_schreiben());
  EXPECT_EQ(desk.dateien(".fmd"), Namen{Beiseite});
}

TEST_F(Laufdatei, AppendWithoutABeginningFindsTheWorkingCopyAsItIs) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(probe(1));
  Messdatei andere(m, desk.ablage, desk.captions, desk.dialog, desk.uhr);
  ASSERT_TRUE(andere.Zeile_anhaengen());
  EXPECT_EQ(proben(), (Namen{"sample 1", "sample 1"}));
}

TEST_F(Laufdatei, CutOffRowIsCutBackBeforeAnAppend) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(probe(1));
  ASSERT_TRUE(probe(2));
  const std::string alles = inhalt();

  for (std::size_t weniger : {1U, 2U, 3U, 5U, 400U}) {
    desk.ordner.schreib(Datei, std::string_view(alles).substr(0, alles.size() - weniger));
    ASSERT_TRUE(datei.Zeile_anhaengen());
    const Namen erwartet =
        weniger <= 2 ? Namen{"sample 1", "sample 2", "sample 2"} : Namen{"sample 1", "sample 2"};
    EXPECT_EQ(proben(), erwartet) << weniger;
  }
  EXPECT_TRUE(desk.gemeldet("cut back to its last whole row"));
}

TEST_F(Laufdatei, NulTailIsCutBackBeforeAnAppend) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(probe(1));
  const std::string alles = inhalt();
  desk.ordner.schreib(Datei, alles + std::string(600, '\0'));
  ASSERT_TRUE(probe(2));
  EXPECT_TRUE(inhalt().starts_with(alles + "\"12:00:13\"\r\n"));
  EXPECT_EQ(proben(), (Namen{"sample 1", "sample 2"}));
}

TEST_F(Laufdatei, WorkingCopyThatIsGoneIsBegunAgain) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(probe(1));
  std::filesystem::remove(desk.ordner.pfad(Datei));
  ASSERT_TRUE(probe(2));
  ASSERT_TRUE(probe(3));
  EXPECT_EQ(proben(), (Namen{"sample 2", "sample 3"}));
}

TEST_F(Laufdatei, EveryTruncationOfARunIsReadable) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  const std::size_t kopf = inhalt().size();
  for (int n = 1; n <= 3; ++n) ASSERT_TRUE(probe(n));
  const std::string alles = inhalt();
  for (std::size_t n = kopf; n <= alles.size(); n += 7) {
    desk.ordner.schreib(Datei, std::string_view(alles).substr(0, n));
    Namen erwartet;
    for (std::size_t k = 1; k <= (n - kopf) / ((alles.size() - kopf) / 3); ++k)
      erwartet.push_back("sample " + std::to_string(k));
    const Namen gelesen = proben();
    if (gelesen.size() == erwartet.size() + 1) continue;  // only its line end is missing
    ASSERT_EQ(gelesen, erwartet) << n;
  }
}

namespace {

/// Runs `tat` in a program of its own in which no file can grow beyond `bytes`.
template <class Tat>
bool mit_enger_platte(rlim_t bytes, Tat&& tat) {
  const pid_t kind = ::fork();
  if (kind == 0) {
    ::signal(SIGXFSZ, SIG_DFL);
    const rlimit grenze{bytes, RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &grenze);
    ::_exit(tat() ? 0 : 1);
  }
  int status = 0;
  ::waitpid(kind, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void erweitere_Platte() {
  const rlimit grenze{RLIM_INFINITY, RLIM_INFINITY};
  ::setrlimit(RLIMIT_FSIZE, &grenze);
}

}  // namespace

TEST_F(Laufdatei, RowsThatAFullDiskRefusesWaitAndComeInOrder) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(probe(1));
  const auto bytes = static_cast<rlim_t>(inhalt().size());
  EXPECT_TRUE(mit_enger_platte(bytes + 300, [this] {
    const std::string vorher = inhalt();
    bool gut = !probe(2) && !desk.ablage.letzter_fehler().empty() && inhalt() == vorher;
    gut = gut && !probe(3) && inhalt() == vorher;
    erweitere_Platte();
    return gut && probe(4) && desk.ablage.letzter_fehler().empty();
  }));
  EXPECT_EQ(proben(), (Namen{"sample 1", "sample 2", "sample 3", "sample 4"}));
}

TEST_F(Laufdatei, FullDiskKeepsTheRunBeforeUntilItCanBeKeptBeside) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(probe(1));
  EXPECT_TRUE(mit_enger_platte(100, [this] {
    const std::string vorher = inhalt();
    bool gut = !datei.Lauf_beginnen() && inhalt() == vorher;
    gut = gut && !probe(2) && inhalt() == vorher;
    erweitere_Platte();
    return gut && probe(3);
  }));
  EXPECT_EQ(proben(Beiseite), Namen{"sample 1"});
  EXPECT_EQ(proben(), (Namen{"sample 2", "sample 3"}));
}

// The second limit has room for a table without rows, but not for the run before.
TEST_F(Laufdatei, RunBeforeThatCouldNotBeKeptIsNotOverwrittenAtTheEndEither) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  for (int n = 1; n <= 9; ++n) ASSERT_TRUE(probe(n));
  const std::string lauf = inhalt();
  EXPECT_TRUE(mit_enger_platte(100, [this, &lauf] {
    bool gut = !datei.Lauf_beginnen() && inhalt() == lauf;
    m.DiaG_zurueck_setz();
    const rlimit grenze{static_cast<rlim_t>(lauf.size() / 2), RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &grenze);
    gut = gut && !datei.Arbeitskopie_schreiben() && inhalt() == lauf;
    gut = gut && datei.SaveDiaG("other.fmd");  // so it would have fitted
    erweitere_Platte();
    return gut && datei.Arbeitskopie_schreiben() && inhalt() != lauf;
  }));
  EXPECT_EQ(desk.ordner.lies(Beiseite), lauf);
}

TEST_F(Laufdatei, RefusalThatLastsIsLoggedOnce) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(probe(1));
  EXPECT_TRUE(mit_enger_platte(static_cast<rlim_t>(inhalt().size() + 300), [this] {
    for (int n = 2; n <= 20; ++n)
      if (probe(n)) return false;
    return desk.meldungen.zeilen().size() == 1;
  }));
}

TEST_F(Laufdatei, RunBeforeThatCanNotBeKeptIsLoggedOnce) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(probe(1));
  EXPECT_TRUE(mit_enger_platte(100, [this] {
    if (datei.Lauf_beginnen()) return false;
    for (int n = 2; n <= 20; ++n) {
      desk.uhr.Warten(5000);
      if (probe(n)) return false;
    }
    return desk.meldungen.zeilen().size() == 1;
  }));
}

TEST_F(Laufdatei, CutOffRowThatCanNotBeCutBackIsLoggedOnce) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(probe(1));
  desk.ordner.schreib(Datei, inhalt() + "\"12:00:05\"\r\n\"2.5");
  EXPECT_TRUE(mit_enger_platte(100, [this] {
    for (int n = 2; n <= 20; ++n)
      if (probe(n)) return false;
    return desk.meldungen.zeilen().size() == 1 && !desk.gemeldet("cut back");
  }));
}

// Larger than what a program can take into its memory.
TEST_F(Laufdatei, WorkingCopyThatCanNotBeReadIsNotOverwritten) {
  constexpr std::uintmax_t bytes = (std::uintmax_t{1} << 30) + 1;
  desk.ordner.schreib(Datei, "\"Project\"\r\n");
  std::filesystem::resize_file(desk.ordner.pfad(Datei), bytes);
  datei.LoadDiaG(Datei);
  EXPECT_EQ(m.Messpunkte(), 0);
  EXPECT_FALSE(datei.Arbeitskopie_schreiben());
  EXPECT_FALSE(datei.Lauf_beginnen());
  const std::size_t gemeldet = desk.meldungen.zeilen().size();
  for (int n = 1; n <= 20; ++n) EXPECT_FALSE(probe(n));
  EXPECT_EQ(desk.meldungen.zeilen().size(), gemeldet);
  EXPECT_EQ(std::filesystem::file_size(desk.ordner.pfad(Datei)), bytes);

  std::filesystem::remove(desk.ordner.pfad(Datei));
  EXPECT_TRUE(probe(21));
  EXPECT_EQ(proben().size(), 21U);
}

TEST_F(Laufdatei, UnwantedRowsThatCouldNotBeKeptAreNotOverwritten) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(probe(1));
  std::string lauf = inhalt();
  lauf.replace(lauf.find("65459"), 5, "65458");  // a table that was saved whole
  desk.ordner.schreib(Datei, lauf);
  desk.dialog.antwort = false;
  EXPECT_TRUE(mit_enger_platte(100, [this, &lauf] {
    bool gut = datei.LoadDiaG(Datei).abgelehnt && inhalt() == lauf;
    gut = gut && !datei.Arbeitskopie_schreiben() && inhalt() == lauf;
    erweitere_Platte();
    return gut && datei.Arbeitskopie_schreiben() && inhalt() != lauf;
  }));
  EXPECT_EQ(desk.ordner.lies(Beiseite), lauf);
}

TEST_F(Laufdatei, ReadOnlyFileKeepsItsRowsAndTheNewOnesWait) {
  ASSERT_TRUE(datei.Lauf_beginnen());
  ASSERT_TRUE(probe(1));
  ::chmod(desk.ordner.pfad(Datei).c_str(), 0444);
  EXPECT_FALSE(probe(2));
  ::chmod(desk.ordner.pfad(Datei).c_str(), 0644);
  EXPECT_TRUE(probe(3));
  EXPECT_EQ(proben(), (Namen{"sample 1", "sample 2", "sample 3"}));
}

TEST_F(Laufdatei, KillAtAnyMomentLosesAtMostTheRowBeingWritten) {
  for (int runde = 0; runde < 20; ++runde) {
    int rohr[2];
    ASSERT_EQ(::pipe(rohr), 0);
    const pid_t kind = ::fork();
    if (kind == 0) {
      datei.Lauf_beginnen();
      for (int n = 1;; ++n) {
        probe(n);
        if (::write(rohr[1], "x", 1) != 1) ::_exit(1);
      }
    }
    ::close(rohr[1]);
    int fertig = 0;
    for (char c; fertig < 3 + runde && ::read(rohr[0], &c, 1) == 1;) ++fertig;
    ::usleep(static_cast<useconds_t>(37 * runde));
    ::kill(kind, SIGKILL);
    ::waitpid(kind, nullptr, 0);
    for (char c; ::read(rohr[0], &c, 1) == 1;) ++fertig;
    ::close(rohr[0]);
    const Namen gelesen = proben();
    ASSERT_GE(static_cast<int>(gelesen.size()), fertig);
    for (std::size_t n = 0; n < gelesen.size(); ++n)
      ASSERT_EQ(gelesen[n], "sample " + std::to_string(n + 1));
  }
}
