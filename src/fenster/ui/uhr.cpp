#include "fenster/ui/uhr.h"

#include <QDate>

namespace zinfolio {
namespace {

std::optional<Datum>& GestellteUhr() {
    static std::optional<Datum> gestellt;
    return gestellt;
}

}  // namespace

Datum Heute() {
    if (GestellteUhr()) return *GestellteUhr();
    const QDate heute = QDate::currentDate();
    return *Datum::Aus(heute.year(), heute.month(), heute.day());
}

void UhrStellen(std::optional<Datum> heute) {
    GestellteUhr() = heute;
}

}  // namespace zinfolio
