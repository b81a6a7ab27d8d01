#pragma once
// Driving the form of the account as a user does.

#include "fenster/formhelfer.h"
#include "fenster/staffel/form48000.h"
#include "fenster/ui/tabelle.h"

namespace zinfolio {

/// One payment, typed and taken over.
inline void Zahlung(Form48000& form, const QString& datum, const QString& betrag, const QString& text = {}) {
    Fuelle(form, "Begdatum", datum);
    Fuelle(form, "Betrag", betrag);
    Fuelle(form, "Beschreibung", text);
    Klicke(form, "Speichern");
}

/// A condition of 10 % from 31.12.2006 on, without limits that matter.
inline void Kondition(Form48000& form) {
    Waehle(form, Form48000::zinssaetze);
    const Zeuge zeuge;
    Fuelle(form, "Gültigdatum", "31.12.2006");
    Fuelle(form, "Gutzins1", "10");
    Fuelle(form, "Guthabenlinie", "9999999");
    Fuelle(form, "Kreditlinie", "9999999");
    Klicke(form, "speichern2");
}

}  // namespace zinfolio
