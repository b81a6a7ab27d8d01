#pragma once
// The register of the window tests: one program holds them all, each file enters its class.

#include <QtTest>

namespace zinfolio {

/// One QtTest class, known by the name of its file. Entered before main() runs; main() runs the one that is
/// asked for.
class Fenstertest {
  public:
    using Lauf = int (*)(int argc, char** argv);

    /// `datei` is the source's path, whose name without its ending names the test.
    Fenstertest(const char* datei, Lauf lauf);

    /// Runs the test of that name with the arguments of QtTest: its exit status, or 2 and a list of the names
    /// on standard error.
    static int Starten(const QString& name, int argc, char** argv);
};

}  // namespace zinfolio

/// Enters a QtTest class as the window test of its file. Each runs in a process of its own, by its name: no
/// test sees what another left behind.
#define ZINFOLIO_FENSTERTEST(Klasse)                                                                \
    static const zinfolio::Fenstertest eintrag##Klasse(__FILE__, [](int argc, char** argv) -> int { \
        Klasse test;                                                                                \
        return QTest::qExec(&test, argc, argv);                                                     \
    });
