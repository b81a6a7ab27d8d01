#include "fenster/ausgabe/pdfangaben.h"

#include <QList>
#include <cctype>
#include <stdexcept>
#include <string>
#include <utility>

namespace zinfolio {
namespace {

[[noreturn]] void Unverstanden(const char* was) {
    throw std::invalid_argument(std::string("Das PDF-Dokument ist nicht wie erwartet: ") + was);
}

/// A text as a hexadecimal string in UTF-16BE.
QByteArray Textstring(const QString& text) {
    QByteArray hex = "<FEFF";
    for (const QChar zeichen : text)
        hex += QByteArray::number(zeichen.unicode(), 16).toUpper().rightJustified(4, '0');
    return hex + '>';
}

qsizetype Finden(const QByteArray& pdf, const char* wort, qsizetype ab) {
    const qsizetype stelle = pdf.indexOf(wort, ab);
    if (stelle < 0) Unverstanden(wort);
    return stelle;
}

/// The whole number behind a word.
qlonglong ZahlHinter(const QByteArray& pdf, const char* wort, qsizetype ab) {
    const qsizetype anfang = Finden(pdf, wort, ab) + static_cast<qsizetype>(qstrlen(wort));
    const QByteArray umgebung = pdf.mid(anfang, 24).simplified();
    bool gelesen = false;
    const qlonglong zahl = umgebung.left(umgebung.indexOf(' ')).toLongLong(&gelesen);
    if (!gelesen) Unverstanden(wort);
    return zahl;
}

/// The place of an object by a cross-reference table that begins with object 0 and is all in one piece.
qsizetype Objektstelle(const QByteArray& pdf, qsizetype tafel, qlonglong nummer) {
    constexpr qsizetype eintragslaenge = 20;
    const qsizetype kopfende = Finden(pdf, "\n", Finden(pdf, "xref\n0 ", tafel) + 5) + 1;
    bool gelesen = false;
    const qlonglong stelle = pdf.mid(kopfende + nummer * eintragslaenge, 10).toLongLong(&gelesen);
    if (!gelesen) Unverstanden("xref");
    return stelle;
}

/// Where a literal string ends, behind its closing parenthesis.
qsizetype Stringende(const QByteArray& pdf, qsizetype stelle) {
    for (qsizetype i = stelle + 1; i < pdf.size(); ++i) {
        if (pdf[i] == '\\')
            ++i;
        else if (pdf[i] == ')')
            return i + 1;
    }
    Unverstanden("(");
}

/// The entries of a dictionary of literal strings.
QList<std::pair<QByteArray, QByteArray>> Eintraege(const QByteArray& pdf, qsizetype ab) {
    QList<std::pair<QByteArray, QByteArray>> eintraege;
    qsizetype stelle = Finden(pdf, "<<", ab) + 2;
    for (;;) {
        while (stelle < pdf.size() && std::isspace(static_cast<unsigned char>(pdf[stelle])))
            ++stelle;
        if (pdf.mid(stelle, 2) == ">>") return eintraege;
        const qsizetype klammer = Finden(pdf, "(", stelle);
        const qsizetype ende = Stringende(pdf, klammer);
        eintraege.emplace_back(pdf.mid(stelle, klammer - stelle).trimmed(), pdf.mid(klammer, ende - klammer));
        stelle = ende;
    }
}

}  // namespace

QByteArray MitDokumentangaben(QByteArray pdf, const Dokumentangaben& angaben) {
    const qsizetype schluss = pdf.lastIndexOf("startxref");
    const qsizetype anhaenger = pdf.lastIndexOf("trailer");
    if (schluss < 0 || anhaenger < 0) Unverstanden("trailer");
    const auto tafel = static_cast<qsizetype>(ZahlHinter(pdf, "startxref", schluss));
    const qlonglong nummer = ZahlHinter(pdf, "/Info", anhaenger);
    QByteArray objekt = QByteArray::number(nummer) + " 0 obj\n<<\n/Title " + Textstring(angaben.titel) +
                        "\n/Author " + Textstring(angaben.verfasser) + '\n';
    for (const auto& [name, wert] : Eintraege(pdf, Objektstelle(pdf, tafel, nummer)))
        if (name != "/Title" && name != "/Author") objekt += name + ' ' + wert + '\n';
    objekt += ">>\nendobj\n";
    const QByteArray stelle = QByteArray::number(pdf.size()).rightJustified(10, '0');
    const QByteArray neueTafel = QByteArray::number(pdf.size() + objekt.size());
    const QByteArray alterAnhaenger = pdf.mid(anhaenger, schluss - anhaenger).trimmed();
    if (!alterAnhaenger.endsWith(">>")) Unverstanden("trailer");
    pdf += objekt + "xref\n" + QByteArray::number(nummer) + " 1\n" + stelle + " 00000 n \n" +
           alterAnhaenger.chopped(2) + "/Prev " + QByteArray::number(tafel) + "\n>>\nstartxref\n" +
           neueTafel + "\n%%EOF\n";
    return pdf;
}

}  // namespace zinfolio
