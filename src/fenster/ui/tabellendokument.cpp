#include "fenster/ui/tabellendokument.h"

#include "kern/dateien/dateifehler.h"

#ifdef ZINFOLIO_XLSX

#include <QTemporaryDir>
#include <map>
#include <xlsxwriter.h>

#include "kern/dateien/atomar.h"
#include "kern/dateien/ganzedatei.h"

namespace zinfolio {
namespace {

constexpr std::size_t meisteSpalten = 16384;
constexpr std::size_t groesstesDokument = std::size_t{1} << 30;
constexpr double zeichenJeSpalte = 16;

/// How many digits stand behind the comma of a shown number.
std::size_t Nachkommastellen(const std::string& text) {
    const auto komma = text.rfind(',');
    return komma == std::string::npos ? 0 : text.find_last_of("0123456789") - komma;
}

/// A workbook of one sheet, which is written where it is closed.
class Arbeitsmappe {
  public:
    explicit Arbeitsmappe(const std::string& datei) : mappe_(workbook_new(datei.c_str())) {
        blatt_ = workbook_add_worksheet(mappe_, "Tabelle");
        datum_ = Neu("dd.mm.yyyy");
        kopf_ = workbook_add_format(mappe_);
        format_set_bold(kopf_);
        format_set_text_wrap(kopf_);
    }
    Arbeitsmappe(const Arbeitsmappe&) = delete;
    Arbeitsmappe& operator=(const Arbeitsmappe&) = delete;
    ~Arbeitsmappe() {
        if (mappe_ != nullptr) workbook_close(mappe_);
    }

    void Kopf(const std::vector<Tabellenspalte>& spalten) {
        worksheet_set_column(blatt_, 0, static_cast<lxw_col_t>(spalten.size() - 1), zeichenJeSpalte, nullptr);
        for (std::size_t i = 0; i < spalten.size(); ++i)
            worksheet_write_string(blatt_, 0, static_cast<lxw_col_t>(i), spalten[i].kopf.c_str(), kopf_);
        worksheet_freeze_panes(blatt_, 1, 0);
    }

    void Zelle(std::size_t zeile, std::size_t spalte, const Zellwert& wert, const std::string& text) {
        const auto z = static_cast<lxw_row_t>(zeile);
        const auto s = static_cast<lxw_col_t>(spalte);
        const auto* datum = std::get_if<Datum>(&wert);
        if (const auto* zahl = std::get_if<double>(&wert)) {
            worksheet_write_number(blatt_, z, s, *zahl, Zahlformat(Nachkommastellen(text)));
        } else if (datum != nullptr && datum->Jahr() >= 1900) {
            lxw_datetime tag{datum->Jahr(), datum->Monat(), datum->Tag(), 0, 0, 0};
            worksheet_write_datetime(blatt_, z, s, &tag, datum_);
        } else {
            worksheet_write_string(blatt_, z, s, text.c_str(), nullptr);
        }
    }

    [[nodiscard]] bool Schliessen() {
        lxw_workbook* mappe = std::exchange(mappe_, nullptr);
        return workbook_close(mappe) == LXW_NO_ERROR;
    }

  private:
    lxw_format* Neu(const std::string& muster) {
        lxw_format* format = workbook_add_format(mappe_);
        format_set_num_format(format, muster.c_str());
        return format;
    }
    lxw_format* Zahlformat(std::size_t stellen) {
        lxw_format*& format = zahlen_[stellen];
        if (format == nullptr) format = Neu(stellen == 0 ? "0" : "#,##0." + std::string(stellen, '0'));
        return format;
    }

    lxw_workbook* mappe_;
    lxw_worksheet* blatt_;
    lxw_format* datum_;
    lxw_format* kopf_;
    std::map<std::size_t, lxw_format*> zahlen_;
};

}  // namespace

bool TabellendokumentMoeglich() {
    return true;
}

void TabellendokumentSchreiben(const std::filesystem::path& datei, const Tabelleninhalt& inhalt) {
    if (inhalt.spalten.size() > meisteSpalten)
        throw Dateifehler("Ein Tabellendokument hat höchstens 16384 Spalten.");
    // The library writes to a name; only what it finished takes the place of the user's file.
    const QTemporaryDir ordner;
    const std::filesystem::path vorlaeufig = ordner.filePath("Tabelle.xlsx").toStdString();
    Arbeitsmappe mappe(vorlaeufig.string());
    if (!inhalt.spalten.empty()) mappe.Kopf(inhalt.spalten);
    for (std::size_t zeile = 0; zeile < inhalt.zeilen; ++zeile)
        for (std::size_t spalte = 0; spalte < inhalt.spalten.size(); ++spalte)
            mappe.Zelle(zeile + 1, spalte, inhalt.Wert(zeile, spalte), inhalt.zelle(zeile, spalte));
    if (!mappe.Schliessen()) throw Dateifehler("Das Tabellendokument konnte nicht geschrieben werden.");
    AtomarSchreiben(datei, GanzeDateiLesen(vorlaeufig, groesstesDokument), Sicherung::Dauerhaft);
}

}  // namespace zinfolio

#else

namespace zinfolio {

bool TabellendokumentMoeglich() {
    return false;
}

void TabellendokumentSchreiben(const std::filesystem::path& /*datei*/, const Tabelleninhalt& /*inhalt*/) {
    throw Dateifehler("Dieses Programm wurde ohne Tabellendokumente gebaut.");
}

}  // namespace zinfolio

#endif
