// The PDF writer as a module that a program without windows loads when it is needed.

#include <QGuiApplication>
#include <array>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <memory>
#include <string>

#include "fenster/ausgabe/pdf.h"

namespace {

using namespace zinfolio;

/// What the toolkit remarks on its surroundings is no business of the caller; only what ends the program is.
void Bemerkung(QtMsgType art, const QMessageLogContext& /*wo*/, const QString& text) {
    if (art == QtFatalMsg) std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

/// Fonts and painting need an application object; one without windows where there is none yet.
std::unique_ptr<QGuiApplication> Anwendung() {
    if (QCoreApplication::instance()) return nullptr;
    static std::array<char, 9> name{"zinfolio"};
    static std::array<char, 10> schalter{"-platform"};
    static std::array<char, 10> plattform{"offscreen"};
    static std::array<char*, 4> argumente{};
    static int anzahl = 0;
    // The toolkit takes out what it has understood.
    argumente = {name.data(), schalter.data(), plattform.data(), nullptr};
    anzahl = 3;
    qInstallMessageHandler(Bemerkung);
    return std::make_unique<QGuiApplication>(anzahl, argumente.data());
}

}  // namespace

/// A number for how a report lies in memory. The caller compares it with his own before he hands one over.
extern "C" __attribute__((visibility("default"))) const std::uint64_t ZinfolioBerichtslayout;
constexpr std::uint64_t ZinfolioBerichtslayout = ZINFOLIO_BERICHTSLAYOUT;

/// Writes a report as a PDF file, all or nothing. 0: done; 1: not, and `fehler` says why in German. Both
/// pointers are needed.
extern "C" __attribute__((visibility("default"))) int ZinfolioBerichtAlsPdf(const Bericht* bericht,
                                                                            const char* datei,
                                                                            std::string* fehler) noexcept {
    try {
        const auto anwendung = Anwendung();
        (void)PdfSchreiben(Seitenmaler(*bericht), datei);
        return 0;
    } catch (const std::exception& ausnahme) {
        *fehler = ausnahme.what();
    } catch (...) {
        *fehler = "Die PDF-Datei kann nicht geschrieben werden.";
    }
    return 1;
}
