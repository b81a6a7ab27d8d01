#pragma once
// How the two axes of a chart are divided and labelled.

#include <qcustomplot.h>
#include <string>
#include <vector>

namespace zinfolio {

/// Labels rows, numbered from 0, with their texts: as many as fit without touching each other.
class Zeilenteilung : public QCPAxisTicker {
  public:
    /// REQUIRES: the axis outlives its ticker's use.
    explicit Zeilenteilung(const QCPAxis& achse) : achse_(achse) {}

    void Setzen(std::vector<std::string> texte);

    /// Pixels that the widest label takes in the axis' font.
    [[nodiscard]] int Textbreite() const;

  protected:
    double getTickStep(const QCPRange& bereich) override;
    int getSubTickCount(double schritt) override;
    QVector<double> createTickVector(double schritt, const QCPRange& bereich) override;
    QString getTickLabel(double stelle, const QLocale& sprache, QChar format, int genauigkeit) override;

  private:
    [[nodiscard]] std::size_t Mindestabstand(const QCPRange& bereich) const;

    const QCPAxis& achse_;
    std::vector<std::string> texte_;
    mutable QFont gemessen_;
    mutable int breite_ = -1;
};

/// Labels amounts in German notation with the decimals that their step needs, as many as the axis has room
/// for.
class Betragsteilung : public QCPAxisTicker {
  public:
    explicit Betragsteilung(const QCPAxis& achse) : achse_(achse) {}

  protected:
    double getTickStep(const QCPRange& bereich) override;
    QString getTickLabel(double stelle, const QLocale& sprache, QChar format, int genauigkeit) override;

  private:
    const QCPAxis& achse_;
    int nachkommastellen_ = 0;
};

}  // namespace zinfolio
