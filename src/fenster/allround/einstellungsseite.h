#pragma once

#include <QWidget>

namespace zinfolio {

class Eingabefeld;

/// The settings: the rate that analyses take where their own is empty.
class Einstellungsseite : public QWidget {
    Q_OBJECT

  public:
    explicit Einstellungsseite(QWidget* eltern);

    /// The rate as typed, stored or not.
    [[nodiscard]] std::string Abzins() const;
    void Setze(const std::string& abzins);

  signals:
    void speichernVerlangt();
    void zurueck();

  private:
    Eingabefeld* Abzins_;
};

}  // namespace zinfolio
