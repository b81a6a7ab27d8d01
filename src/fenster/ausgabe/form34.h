#pragma once

#include <QDialog>
#include <filesystem>

#include "fenster/ausgabe/schreibtisch.h"

class QPlainTextEdit;
class QPrinter;

namespace zinfolio {

/// The viewer for results as plain text: shows `RTF2.RTF` of the working folder, read anew whenever it is
/// shown. It can print the text, copy it, and hand it to a word processor; without one that button is absent.
class Form34 : public QDialog {
    Q_OBJECT

  public:
    /// `textverarbeitung` is a program that takes the text's file; empty: there is none.
    explicit Form34(std::filesystem::path arbeitsordner, QWidget* eltern = nullptr,
                    QString textverarbeitung = Textverarbeitung());

  protected:
    void showEvent(QShowEvent* ereignis) override;
    void hideEvent(QHideEvent* ereignis) override;

  private:
    void Laden();
    void FesteSchriftSetzen();
    /// The font's name alone: a size that the user has chosen stays.
    void FestenNamenSetzen();
    void Ende();
    void SchriftWaehlen();
    void Ausdrucken();
    void AnTextverarbeitung();
    void InZwischenablage();

    std::filesystem::path arbeitsordner_;
    QString textverarbeitung_;
    QPlainTextEdit* R_;
};

}  // namespace zinfolio
