#pragma once

#include <QGroupBox>
#include <span>
#include <string_view>

class QAbstractButton;
class QButtonGroup;

namespace zinfolio {

/// Options of which one is chosen. Each stands for a number and bears it in its name: "Option1(2)".
class Optionsfeld : public QGroupBox {
    Q_OBJECT

  public:
    /// `zahlen` has one number for each text; empty: they count from 0.
    Optionsfeld(const QString& name, const QString& titel, std::span<const std::string_view> texte,
                std::span<const int> zahlen, QWidget* eltern = nullptr);

    [[nodiscard]] QList<QAbstractButton*> Optionen() const;
    [[nodiscard]] int Zahl() const;
    /// A number that no option stands for chooses the last one.
    void Setze(int zahl);

  signals:
    /// Another option is chosen; the user has clicked one.
    void gewechselt();
    void geklickt();

  private:
    /// Tab goes to the option that is chosen.
    void FokusLenken(QAbstractButton* option, bool gewaehlt);

    QButtonGroup* optionen_;
};

}  // namespace zinfolio
